#pragma once

#include <QString>
#include <array>
#include <map>
#include <optional>
#include <vector>

#include "base/asker.h"
#include "engine/card_table.h"
#include "engine/query_result.h"
#include "engine/variable_store.h"

namespace zelvor {

// Switches that cards set and the feed, the timers and the console read.
struct CardSwitches {
    QString AutoTimeCard;
    QString AutoClockCard;
    bool IsTimeCard = false;
    bool IsClockCard = false;
    bool PreviewDisabled = false;
};

// One pick list, as a pack describes it.
struct AskField {
    QString title;
    QString getCode;
    QString display;
    QString autoTag;
    QString sql;
};

struct AskState {
    static constexpr qint16 kYes = -1;
    static constexpr int kSmallestTable = 2;

    qint16 ASK_FIELD = 0;
    QString ASK_RESULT;
    QString ASK_PREVIOUS;
    qint16 ASK_CANCELLED = 0;
    qint16 ASK_OPEN = 0;
    std::vector<AskField> ASK_FIELDS = std::vector<AskField>(kSmallestTable);
    QString lastItemData;  // the key chosen in the pick list that was answered last

    // Throws 9 Subscript out of range outside of ASK_FIELDS.
    [[nodiscard]] const AskField& field(int number) const;
};

// ONAIR_TABLE: which card declared itself on air in a slot. Columns 0 to 5, any row.
class OnAirTable {
 public:
    static constexpr int kColumns = 6;

    // Throws 9 for a column outside of the table.
    QString& at(int row, int column);

 private:
    std::map<int, std::array<QString, kColumns>> rows_;
};

// What the console remembers from one press to the next; no card sees it.
struct ConsoleMemory {
    std::optional<CardPlace> lastFired;  // the button of the card that went on air last
    bool playerSelected = false;
    // Of cards whose line was refused or not sent, by the script's name: why, in words.
    std::map<QString, QString> troubles;
};

// Everything process-wide that cards and rules share. Made by the composition root and passed by reference; two can
// live side by side.
struct ShowState {
    VariableStore variables;
    VariableStore templateData;
    VariableStore remoteTemplateData;
    QueryResult QUERY_RESULT;
    CardTable cards;
    CardSwitches switches;
    AskState ask;
    OnAirTable ONAIR_TABLE;
    QString QUERY_TEXT;

    int currentSet = 1;
    QString lastCard;                // script of the card shown last, empty after no data
    bool scanningProposals = false;  // proposals are being fired; a scan inside one of them does nothing
    bool preview = false;            // the program's command line holds "/PREVIEW"
    ConsoleMemory console;

    [[nodiscard]] QString language() const { return variables.text(u"@LANGUAGE"); }
};

}  // namespace zelvor
