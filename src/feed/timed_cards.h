#pragma once

#include <QTimer>

#include "feed/quiet_rules.h"
#include "feed/unattended_cards.h"

namespace zelvor {

// Runs the timed cards of the card table, each at its own interval (tmrCARD, every tenth of a second).
class TimedCards : public QuietRules {
    Q_OBJECT

 public:
    static constexpr int kInterval = 100;  // milliseconds

    TimedCards(CardEngine& engine, UnattendedCards& cards);

    // Switches tmrCARD on.
    void start();
    // Counts one tick for every timed card and runs those that are due. The timer is off meanwhile, so that ticks do
    // not stack. A card whose interval is 0 or less never fires. One that is due while none may begin runs at the first
    // tick afterwards.
    void tick();

 private:
    void count();

    CardEngine& engine_;
    UnattendedCards& cards_;
    QTimer timer_{this};
    bool ticking_ = false;
};

}  // namespace zelvor
