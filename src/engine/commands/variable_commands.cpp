#include <algorithm>

#include "base/number.h"
#include "engine/card_run.h"

using namespace Qt::StringLiterals;

namespace zelvor::commands {

namespace {

void SETVAR(CardRun& run, const Arguments& args) {
    const Pieces pieces = args.pieces();
    run.variables().setText(pieces[0], pieces[1]);
}

void CHARCOUNT(CardRun& run, const Arguments& args) {
    const Pieces pieces = args.pieces();
    const QStringView text = pieces[1];
    const QStringView wanted = pieces[2];
    const qint64 count = wanted.size() == 1 ? std::ranges::count(text, wanted.front()) : 0;
    run.variables().SetVar(QString(u'@' + pieces[0]), count);
}

bool isNumberBelow(QStringView text, int limit) {
    bool isNumber = false;
    const int number = text.toInt(&isNumber);
    const bool isPlain = text.size() == 1 || (!text.isEmpty() && text[0] >= u'1' && text[0] <= u'9');
    return isNumber && isPlain && number < limit;
}

void SPLIT(CardRun& run, const Arguments& args) {
    const QString prefix = u'@' + args.rawPieces()[2] + u'_';
    const Pieces pieces = args.pieces();
    const Pieces parts(pieces[0], pieces[1]);
    run.variables().RemoveVarsWithPrefix(prefix, [&](QStringView rest) { return isNumberBelow(rest, parts.count()); });
    QString name = prefix;
    for (int i = 0; i < parts.count(); ++i) {
        name.truncate(prefix.size());
        appendNumber(name, i);
        run.variables().setText(name, parts[i]);
    }
}

using Argument = Command::Argument;
using Role = Command::Role;

constexpr std::array kVariableCommands{
    Command{u"SETVAR", SETVAR, Argument::Expanded, u"variable;value", u"sets a variable", roles(Role::Variable)},
    Command{u"CHARCOUNT", CHARCOUNT, Argument::Expanded, u"name;text;character",
            u"@name becomes how often the character stands in the text",
            roles(Role::VariableName, Role::Text, Role::Character)},
    Command{u"SPLIT", SPLIT, Argument::Expanded, u"text;separator;name",
            u"stores the pieces as @name_0, @name_1, ...; placeholders in the name stay as they are",
            roles(Role::Text, Role::Text, Role::WrittenPrefix)},
};

}  // namespace

std::span<const Command> variables() {
    return kVariableCommands;
}

}  // namespace zelvor::commands
