#pragma once

#include <QString>
#include <array>
#include <span>
#include <vector>

#include "engine/arguments.h"

namespace zelvor {

class CardRun;

// One word of the card language.
struct Command {
    // Whether placeholders in the argument are replaced before the handler sees it.
    enum class Argument { None, Raw, Expanded };

    // What an argument stands for, for whoever reads a pack without running it.
    enum class Role {
        Text,
        Variable,        // the whole name of a variable that is set
        VariableName,    // the same without its "@"
        VariablePrefix,  // @argument_... are set
        Card,
        Include,
        Formula,
        Expression,
        Operand,  // of a condition; "EVAL" may stand before an expression
        Operation,
        BlockLabel,
        BlockEnd,
        LoopName,
        LoopEnd,
        AskField,
        Button,
        Query,  // its placeholders are replaced when the query runs
    };
    using Roles = std::array<Role, 4>;

    QStringView word;
    void (*handler)(CardRun& run, const Arguments& args);
    Argument argument;
    QStringView usage;    // the ";"-separated arguments, "[...]" where they may be left out; empty for none
    QStringView summary;  // what it does, in a line
    Roles roles{};        // of the arguments, in the order of `usage`
};

constexpr Command::Roles roles(Command::Role first, Command::Role second = Command::Role::Text,
                               Command::Role third = Command::Role::Text, Command::Role fourth = Command::Role::Text) {
    return {first, second, third, fourth};
}

// The command of that word (upper case), null when there is none.
const Command* findCommand(const QString& word);

// All commands, group by group.
std::vector<const Command*> allCommands();

// The rows of each file in commands/.
namespace commands {
std::span<const Command> flow();
std::span<const Command> variables();
std::span<const Command> calculations();
std::span<const Command> cards();
std::span<const Command> templateData();
std::span<const Command> graphics();
std::span<const Command> askAndQuery();
std::span<const Command> textFiles();
std::span<const Command> feedback();
}  // namespace commands

}  // namespace zelvor
