#pragma once

#include <QString>
#include <optional>

#include "base/script_place.h"

namespace zelvor {

// Where a card stands in the card table: its set, and its button in that set from 0.
struct CardPlace {
    int set = 0;
    int index = 0;
    bool operator==(const CardPlace&) const = default;
};

// Who pressed, for the record of what was on air and for him who waits for the outcome.
struct Presser {
    QString by = {};    // what was pressed: "button", "key", "clear"; empty for a menu's item
    QString from = {};  // "HTTP 10.0.0.5" for a press from outside; empty for the operator at the console
    qint64 number = 0;  // of a press from outside, counted from 1
};

// Who asked for a card run or another deed: the operator, the start-up, or what runs cards by itself. Only what is
// attended may take the keyboard.
struct Asker {
    enum class Kind { Operator, StartUp, TimedCard, ClockCard, TimeCard };

    Kind kind = Kind::Operator;
    QString card = {};                    // the card that was asked for; empty for a deed that runs none
    std::optional<CardPlace> place = {};  // its button, for one that has one
    ScriptPlace at = {};  // the line of the running card that speaks for him; that card may be another's
    // Set by the engine for all that happens in that run:
    qint64 run = 0;             // its number, counted from 1
    bool functionCard = false;  // the card leaves the on-air line to others

    Presser presser = {};  // of an operator's deed

    [[nodiscard]] bool isAttended() const { return kind == Kind::Operator || kind == Kind::StartUp; }
};

}  // namespace zelvor
