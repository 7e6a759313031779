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

    [[nodiscard]] bool isAttended() const { return kind == Kind::Operator || kind == Kind::StartUp; }
};

}  // namespace zelvor
