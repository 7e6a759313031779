#pragma once

#include <QString>
#include <span>
#include <vector>

#include "engine/arguments.h"

namespace zelvor {

class CardRun;

// One word of the card language.
struct Command {
    // Whether placeholders in the argument are replaced before the handler sees it.
    enum class Argument { None, Raw, Expanded };

    QStringView word;
    void (*handler)(CardRun& run, const Arguments& args);
    Argument argument;
    QStringView usage;    // the ";"-separated arguments, "[...]" where they may be left out; empty for none
    QStringView summary;  // what it does, in a line
};

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
