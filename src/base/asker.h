#pragma once

#include <QString>

namespace zelvor {

// Who asked for a card run or another deed: the operator, the start-up, or what runs cards by itself. Only what is
// attended may take the keyboard.
struct Asker {
    enum class Kind { Operator, StartUp, TimedCard, ClockCard, TimeCard };

    Kind kind = Kind::Operator;
    QString card = {};  // the card that was asked for; empty for a deed that runs none
    // Set by the engine for all that happens in that run:
    qint64 run = 0;             // its number, counted from 1
    bool functionCard = false;  // the card leaves the on-air line to others

    [[nodiscard]] bool isAttended() const { return kind == Kind::Operator || kind == Kind::StartUp; }
};

}  // namespace zelvor
