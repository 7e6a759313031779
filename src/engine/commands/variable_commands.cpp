#include <algorithm>

#include "base/number.h"
#include "engine/card_run.h"

using namespace Qt::StringLiterals;

namespace zelvor::commands {

namespace {

void SETVAR(CardRun& run, const Arguments& args) {
    const Pieces pieces = args.pieces();
    run.variables().SetVar(pieces[0], pieces[1].toString());
}

void CHARCOUNT(CardRun& run, const Arguments& args) {
    const Pieces pieces = args.pieces();
    const QStringView text = pieces[1];
    const QStringView wanted = pieces[2];
    const qint64 count = wanted.size() == 1 ? std::ranges::count(text, wanted.front()) : 0;
    run.variables().SetVar(QString(u'@' + pieces[0]), count);
}

void SPLIT(CardRun& run, const Arguments& args) {
    const QString prefix = u'@' + args.rawPieces()[2] + u'_';
    const Pieces pieces = args.pieces();
    run.variables().RemoveVarsWithPrefix(prefix);
    const Pieces parts(pieces[0], pieces[1]);
    for (int i = 0; i < parts.count(); ++i) {
        run.variables().SetVar(QString(prefix + QString::number(i)), parts[i].toString());
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
