#pragma once

#include <QTimer>

#include "feed/armed_card.h"

namespace zelvor {

// The local clock or countdown of the Clocks panel (tmrCLOCKS, once a second between Start and Stop) and its card.
class LocalClock : public QuietRules {
    Q_OBJECT

 public:
    static constexpr int kInterval = 1000;    // milliseconds
    static constexpr int kBehindSecond = 10;  // milliseconds

    LocalClock(CardEngine& engine, UnattendedCards& cards);

    // Starts or stops the clock.
    void cmdCLOCKS();
    // One second of the clock: it is written, then its card runs.
    void tick();

 private:
    // The next tick just behind the full second: however late the last one was, none is doubled or skipped.
    void aim();
    void write();
    [[nodiscard]] QString countdown(QTime now) const;

    CardEngine& engine_;
    FormModel& form_;
    QTimer timer_{this};
    ArmedCard card_;
};

}  // namespace zelvor
