#pragma once

#include <QString>
#include <array>
#include <vector>

namespace zelvor {

// One card of a set. Entry 0 of a set holds the set's title in its caption.
struct CardEntry {
    QString caption;
    QString text;  // a caption override set by a script
    QString script;
    bool on = false;
    bool flag = false;
    QString fault = {};  // what breaks the template data that the card made last; empty when nothing does

    [[nodiscard]] const QString& shownCaption() const { return text.isEmpty() ? caption : text; }
};

struct FunctionKey {
    QString title;
    QString script;
};

struct TimedCard {
    QString card;
    qint16 interval = 0;  // ticks of the timed-card timer, tenths of a second
    qint16 ticks = 0;
};

// A pack's card table: the sets of cards, the function keys, the timed cards and a few console switches.
struct CardTable {
    static constexpr int kSets = 6;
    static constexpr int kEntries = 22;
    static constexpr int kCards = kEntries - 1;
    static constexpr int kFunctionKeys = 13;

    using Set = std::array<CardEntry, kEntries>;

    std::array<Set, kSets> sets;
    std::array<FunctionKey, kFunctionKeys> functionKeys;
    std::vector<TimedCard> timedCards;
    QString clearCard;
    bool showPreview = true;
    bool showControls = true;

    // Throws 9 Subscript out of range outside of the table.
    CardEntry& entry(int set, int row);
    FunctionKey& functionKey(int key);
};

}  // namespace zelvor
