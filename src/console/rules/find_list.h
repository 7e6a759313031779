#pragma once

#include <QStringList>
#include <vector>

#include "base/app_folder.h"
#include "engine/show_state.h"

namespace zelvor {

// Something that the operator may look for by its words.
struct FindEntry {
    enum class Kind { Card, FunctionKey, Script, Command, Variable };

    Kind kind;
    QString caption;
    QString where;          // told beside it: the set of a card, the value of a variable
    QString target;         // what is fired or shown: a script, a command's or a variable's name
    CardPlace place = {};   // of a card
    QString language = {};  // of the pack whose card or script it is
};

// The cards of all sets (the current one's first), function keys, the pack's scripts, the commands and all variables.
[[nodiscard]] std::vector<FindEntry> findable(const ShowState& state, const AppFolder& folder,
                                              const std::vector<FindEntry>& commands);

// Entries in the order in which they are offered.
class FindList {
 public:
    // recent: scripts, the one fired last in front; their entries come first.
    FindList(std::vector<FindEntry> entries, const QStringList& recent);

    // The entries whose caption or target holds every word typed, in any place; letters as foldedLetters() has them.
    [[nodiscard]] std::vector<const FindEntry*> narrowed(const QString& typed);
    // How many texts have been folded: none before something is typed, each once.
    [[nodiscard]] qsizetype folded() const { return folded_.size(); }

 private:
    void offerFirst(const QStringList& recent);

    std::vector<FindEntry> entries_;
    QStringList folded_;  // caption and target of each entry
};

}  // namespace zelvor
