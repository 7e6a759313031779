#pragma once

#include "feed/quiet_rules.h"
#include "feed/unattended_cards.h"

namespace zelvor {

// What one message of the venue's timing system does: it sets the variables of the game time, splits off extra time
// past the operator's threshold, and shows both. The armed time card is run by whoever knows which message is the
// newest.
class GameFeed : public QuietRules {
    Q_OBJECT

 public:
    enum class Outcome { Clock, Pause, Refused };

    GameFeed(CardEngine& engine, UnattendedCards& cards);

    // The clock is what stands between the first and the second "t", in minutes, ":" and two digits of seconds;
    // "pause" changes nothing. A message whose clock is missing or no number is refused, and so is every message
    // while the threshold in txtEAFTER is no number.
    Outcome handle(const QString& datagram);
    // While the database is waited for a message only writes: the next one may be handled inside of another, and the
    // time card runs afterwards.
    [[nodiscard]] bool onlyWrites() const { return engine_.program().databaseWait.isOn(); }
    [[nodiscard]] bool mayRunCard() const { return cards_.mayBegin(); }
    // Runs the armed time card, if there is one. Only while it may.
    void runTimeCard();

 Q_SIGNALS:
    // After a time in which it was not to.
    void cardMayRun();

 private:
    void apply(const QString& datagram);

    CardEngine& engine_;
    Control& extraAfter_;
    Control& threshold_;
    Control& time_;
    Control& extraTime_;
    UnattendedCards& cards_;
};

}  // namespace zelvor
