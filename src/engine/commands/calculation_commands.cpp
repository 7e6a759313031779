#include "base/number.h"
#include "engine/card_run.h"
#include "engine/shares.h"
#include "script/decimal.h"
#include "script/pattern.h"

using namespace Qt::StringLiterals;

namespace zelvor::commands {

namespace {

void EVAL(CardRun& run, const Arguments& args) {
    const QStringView name = args.rawPieces()[0];
    run.variables().SetVar(QString(u'@' + name), run.engine().calculator().evaluate(args.pieces()[1]));
}

void CALC(CardRun& run, const Arguments& args) {
    const Pieces pieces = args.pieces();
    Calculator& calculator = run.engine().calculator();
    const auto tellWarning = [&] {
        const std::string_view warning = calculator.warning();
        if (!warning.empty()) run.warn(u"CALC: "_s + QUtf8StringView(warning).toString() + u": "_s + pieces[1]);
    };
    try {
        run.variables().SetVar(pieces[0], calculator.calculate(pieces[1]));
    } catch (const RunTimeError&) {
        tellWarning();  // why the formula has no value
        throw;
    }
    tellWarning();
}

double rounded(QStringView text, int digits) {
    constexpr int kMostDigits = 22;
    const double number = wantedNumber(text);
    if (digits < 0 || digits > kMostDigits) throw RunTimeError(ErrorNumber::InvalidProcedureCall);
    return script::roundedTo(number, digits, script::Halves::ToEven);
}

void ROUND(CardRun& run, const Arguments& args) {
    const Pieces pieces = args.pieces();
    run.variables().SetVar(pieces[0], rounded(pieces[1], wholeNumber16(pieces[2])));
}

void PERCENTMAX(CardRun& run, const Arguments& args) {
    const Pieces pieces = args.pieces();
    const Shares shares = sharesOf(Val(pieces[0]), Val(pieces[1]), Val(pieces[2]));
    run.variables().SetVar(u"@PERCM1", shares.first);
    run.variables().SetVar(u"@PERCM2", shares.second);
}

double numberInResult(CardRun& run, int row, QStringView column) {
    const Value* cell = run.state().QUERY_RESULT.find(row, wholeNumber32(column));
    if (cell == nullptr) throw RunTimeError(ErrorNumber::SubscriptOutOfRange, u"QUERY_RESULT"_s);
    return cell->leadingNumber();
}

void PERCENT(CardRun& run, const Arguments& args) {
    const Pieces pieces = args.pieces();
    const int row = wholeNumber32(pieces[0]);
    const double part = numberInResult(run, row, pieces[1]);
    const double whole = numberInResult(run, row, pieces[2]);
    if (whole == 0) {
        run.variables().SetVar(u"@PERC", 0);
        return;
    }
    run.variables().SetVar(u"@PERC", script::formatNumber(part / whole * 100, u"##0.00"));
}

// variable;find;replacement: the variable is named with or without brackets.
void REPLACE(CardRun& run, const Arguments& args) {
    QString name = args.rawPieces()[0].toString();
    name.remove(u'{').remove(u'}');
    const Pieces pieces = args.pieces();
    QString text = pieces[0].toString();
    const QStringView find = pieces[1];
    const QStringView replacement = pieces[2];
    if (!find.isEmpty()) text.replace(find.data(), find.size(), replacement.data(), replacement.size());
    run.variables().setText(name, text);
}

using Argument = Command::Argument;
using Role = Command::Role;

constexpr std::array kCalculationCommands{
    Command{u"EVAL", EVAL, Argument::Expanded, u"name;expression",
            u"@name becomes the script expression's value; placeholders in the name stay as they are",
            roles(Role::WrittenName, Role::Expression)},
    Command{u"CALC", CALC, Argument::Expanded, u"variable;formula", u"the variable becomes the formula's value",
            roles(Role::Variable, Role::Formula)},
    Command{u"ROUND", ROUND, Argument::Expanded, u"variable;value;digits",
            u"the variable becomes the rounded value, halves to the even digit",
            roles(Role::Variable, Role::Number, Role::Places)},
    Command{u"PERCENTMAX", PERCENTMAX, Argument::Expanded, u"a;b;max",
            u"splits max as a to b into @PERCM1 and @PERCM2"},
    Command{u"PERCENT", PERCENT, Argument::Expanded, u"row;column1;column2",
            u"@PERC becomes column1 in percent of column2 of a row of the query result",
            roles(Role::CellNumber, Role::CellNumber, Role::CellNumber)},
    Command{
        u"REPLACE", REPLACE, Argument::Expanded, u"variable;find;replacement",
        u"replaces every find in the variable's value, written {@NAME}: without the braces the name itself is the text",
        roles(Role::ReplacedText)},
};

}  // namespace

std::span<const Command> calculations() {
    return kCalculationCommands;
}

}  // namespace zelvor::commands
