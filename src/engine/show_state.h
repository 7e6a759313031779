#pragma once

#include <QString>
#include <array>
#include <map>
#include <vector>

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
    qint16 LOOP_ANSWER = 0;

    int currentSet = 1;
    int lastFiredButton = -1;  // index of the card button fired last, -1 when none
    QString lastCard;          // script of the card shown last, empty after no data
    bool playerSelected = false;
    bool scanningProposals = false;  // proposals are being fired; a scan inside one of them does nothing
    int unattendedRuns = 0;          // runs under way of cards that a timer or the feed has fired
    QString unattendedCard;          // the innermost of them
    bool preview = false;            // the program's command line holds "/PREVIEW"
    bool closing = false;            // set once when the program ends; runs that wait then end at once

    [[nodiscard]] QString language() const { return variables.text(u"@LANGUAGE"); }
};

}  // namespace zelvor
