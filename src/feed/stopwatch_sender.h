#pragma once

#include <QTimer>

#include "feed/quiet_rules.h"

namespace zelvor {

// The load test of the main link: a stopwatch sent a hundred times a second (tmrTEST) while it is started.
class StopwatchSender : public QuietRules {
    Q_OBJECT

 public:
    static constexpr int kInterval = 10;  // milliseconds

    StopwatchSender(FormModel& form, Graphics& graphics, ErrorTrap& trap);

    // Starts or stops the sender; the stopwatch goes on where it was.
    void Command1();
    // Counts one step and sends it.
    void tick();

 private:
    Control& button_;
    Control& mark_;
    Graphics& graphics_;
    QTimer timer_{this};
    int fraction_ = 0;
    int seconds_ = 0;
};

}  // namespace zelvor
