#include "engine/command_table.h"

#include <QHash>
#include <array>

namespace zelvor {

namespace {

constexpr std::array kGroups{&commands::flow,      &commands::variables,    &commands::calculations,
                             &commands::cards,     &commands::templateData, &commands::graphics,
                             &commands::textFiles, &commands::feedback,     &commands::askAndQuery};

QHash<QString, const Command*> commandsByWord() {
    QHash<QString, const Command*> byWord;
    for (const Command* command : allCommands()) byWord.insert(command->word.toString(), command);
    return byWord;
}

}  // namespace

const Command* findCommand(const QString& word) {
    static const QHash<QString, const Command*> kByWord = commandsByWord();
    return kByWord.value(word, nullptr);
}

std::vector<const Command*> allCommands() {
    std::vector<const Command*> all;
    for (const auto group : kGroups) {
        for (const Command& command : group()) all.push_back(&command);
    }
    return all;
}

}  // namespace zelvor
