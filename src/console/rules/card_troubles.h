#pragma once

#include <QObject>

#include "engine/card_engine.h"

namespace zelvor {

// What the operator is told of cards whose lines were refused or not sent: a mark on their buttons and a line beside
// the on-air text, until one of his cards has gone well or the screen is cleared. What fires by itself, and function
// cards, mark their buttons, but leave an operator's card its place in the line.
class CardTroubles : public QObject {
    Q_OBJECT

 public:
    explicit CardTroubles(CardEngine& engine);

    // words: "404 CG ADD FAILED", "not sent: main link down". Nothing for a line of no card.
    void add(const Asker& asker, const QString& words);
    // A line of that card has gone well.
    void wentWell(const Asker& asker);
    void clear();

 Q_SIGNALS:
    // Card buttons have another mark.
    void changed();
    // One of the operator's cards has gone well.
    void cardWentWell();
    // Nothing is marked any longer.
    void cleared();

 private:
    void showNone();

    ShowState& state_;
    Control& line_;
    Asker shown_;  // whose trouble stands in the line; no card: nobody's
};

}  // namespace zelvor
