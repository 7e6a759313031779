#pragma once

#include "engine/card_engine.h"
#include "form/control.h"

namespace zelvor {

// The record in a proposal label's tag, id|used|card|key:answer##...
class Proposal {
 public:
    // A record with fewer than four fields throws 9, naming the label.
    explicit Proposal(const Control& label);

    // True when that slot holds the proposal's card and tag: letter case aside, and whether its name ends in ".qrd" or
    // ".csp".
    [[nodiscard]] bool isOnAir(const QString& slotCard, const QString& slotTag) const;
    [[nodiscard]] const QString& card() const { return card_; }

    // Sets the proposal's answers and runs the card for it. A proposal whose card ran is marked used, in the database
    // and then on its label; a failing database throws. Of one whose card did not, the label says why.
    void fire(CardEngine& engine, const QString& card, Control& label, const Asker& asker) const;

 private:
    QString id_;
    QString card_;
    QString tag_;
};

}  // namespace zelvor
