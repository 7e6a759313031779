#include "app_calc/calc_command.h"

#include <algorithm>
#include <ostream>
#include <string_view>

#include "app_calc/calc_options.h"
#include "expr/cls_formula.h"
#include "expr/function_table.h"

namespace zelvor {

namespace {

constexpr int kOk = 0;
constexpr int kFormulaError = 1;

// Characters of a long formula that are shown around the place of an error.
constexpr int kExcerpt = 72;

constexpr std::string_view kUsage =
    "usage: zelvor calc [options] [--] FORMULA\n"
    "       zelvor calc --list\n";

constexpr std::string_view kHelp =
    "\n"
    "Evaluates a formula and prints its value.\n"
    "\n"
    "  --var NAME=VALUE    gives a variable its value; repeatable; told when the formula lacks it\n"
    "  --angle UNIT        RAD (the default), DEG or GRAD\n"
    "  --dms               angles may be written in degrees, minutes and seconds: 10d30m15s\n"
    "  --units             numbers may carry units: 5mV is 0.005\n"
    "  --assign-explicit   variables keep no value from one formula to the next\n"
    "  --digits N          significant digits of the result, 1 to 17; 15 when not given\n"
    "  --dump              prints the table of operations before the result\n"
    "  --list              lists the functions\n"
    "\n"
    "Exit status: 0, 1 for an error in the formula, 2 for wrong usage.\n"
    "Example: zelvor calc --var x=3 '2x + sqr(16)' prints 10\n";

void printList(std::ostream& out) {
    std::size_t width = 0;
    for (const expr::Function& function : expr::functions()) {
        width = std::max(width, function.name.size() + function.arguments.size() + 2);
    }
    auto group = expr::functionGroups().begin();
    for (const expr::Function& function : expr::functions()) {
        if (group != expr::functionGroups().end() && function.name == group->first) {
            if (group != expr::functionGroups().begin()) out << '\n';
            out << group->title << '\n';
            ++group;
        }
        std::string call(function.name);
        call.append("(").append(function.arguments).append(")");
        call.resize(width + 2, ' ');
        out << "  " << call << function.meaning << '\n';
    }
}

// The formula around a character, counted from 1, on one line, and a caret under it.
void printPlace(std::string_view formula, int position, std::ostream& err) {
    const int first = std::max(1, position - kExcerpt / 2);
    std::string line;
    int character = 0;
    for (const char c : formula) {
        const auto byte = static_cast<unsigned char>(c);
        if ((byte & 0xC0U) != 0x80U) ++character;
        if (character < first || character >= first + kExcerpt) continue;
        // A line feed or a tab would put the caret out of place.
        line += byte < 0x20 || byte == 0x7F ? ' ' : c;
    }
    err << "  " << line << "\n  " << std::string(static_cast<std::size_t>(position - first), ' ') << "^\n";
}

int printError(const expr::clsFormula& formula, std::ostream& err) {
    err << formula.ErrorDescription() << '\n';
    if (formula.ErrorPos() > 0) printPlace(formula.Expression(), formula.ErrorPos(), err);
    return kFormulaError;
}

int evaluate(const CalcOptions& options, std::ostream& out, std::ostream& err) {
    expr::clsFormula formula;
    formula.AngleUnit(options.angle);
    formula.OpDMSConv(options.degrees);
    formula.OpUnitConv(options.units);
    formula.OpAssignExplicit(options.assignExplicit);
    if (!formula.StoreExpression(options.formula)) return printError(formula, err);
    for (const auto& [name, value] : options.variables) {
        formula.VarSymb(name, value);
        // Told, for it may be misspelt; the value does not depend on it.
        if (formula.ErrorID() != 0) err << formula.ErrorDescription() << ": " << name << '\n';
    }
    const double value = formula.Eval();
    if (options.dump) out << formula.ET_Dump();
    if (!formula.Warning().empty()) err << formula.Warning() << '\n';
    if (formula.ErrorID() != 0) return printError(formula, err);
    out << plain::numberText(value, options.digits) << '\n';
    return kOk;
}

}  // namespace

int runCalc(const QStringList& arguments, std::ostream& out, std::ostream& err) {
    const CalcOptions options = readCalcOptions(arguments);
    if (options.help) {
        out << kUsage << kHelp;
        return kOk;
    }
    if (options.list) {
        printList(out);
        return kOk;
    }
    return evaluate(options, out, err);
}

}  // namespace zelvor
