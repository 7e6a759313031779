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
        Filled,          // a text that must not be empty: a file, a statement
        Path,            // the same, read up to the first ";"
        Variable,        // the whole name of a variable that is set
        VariableName,    // the same without its "@"
        WrittenName,     // the same, its placeholders not replaced
        VariablePrefix,  // @argument_... are set
        WrittenPrefix,   // the same, its placeholders not replaced
        ReplacedText,    // a variable that is set, and the text that it is made of
        Card,
        AutoCard,  // a card that the game clock or the local clock runs
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
        ColourValue,
        Label,
        TextBox,
        Form,
        Proposal,  // the number of a proposal label
        Slot,      // row-column
        Tag,       // key:answer##...
        Character,
        Number,
        WholeNumber,
        CellNumber,  // a row or column of the query's result
        Places,      // decimal places
        FeedNumber,  // read as far as it is a number
        Field,       // of a template; its value is the last argument
        RemoteField,
        Query,        // its placeholders are replaced when the query runs
        CommandLine,  // to a server; one that holds "PLAY" waits
        Waits,        // holds up a clock that runs its card
        WaitsForDatabase,
    };
    using Roles = std::array<Role, 4>;

    QStringView word;
    void (*handler)(CardRun& run, const Arguments& args);
    Argument argument;
    QStringView usage;    // the ";"-separated arguments, "[...]" where they may be left out; empty for none
    QStringView summary;  // what it does, in a line
    Roles roles{};        // of the arguments, in the order of `usage`
    QStringView needs{};  // the command without which, in the same script, this one fails; empty for none
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
