#pragma once

#include <QTimer>

#include "feed/quiet_rules.h"
#include "form/blink.h"

namespace zelvor {

// The score in use: the automatic one that cards write into lblAutoScoreA and lblAutoScoreB, or the operator's in
// manual mode, with the LIVE lamp that blinks in automatic mode (tmrBlink). Follows the form model's changes, whoever
// makes them.
class Scoreboard : public QuietRules {
    Q_OBJECT

 public:
    static constexpr int kBlinkInterval = 700;  // milliseconds
    static_assert(blinksCalmly(kBlinkInterval));

    Scoreboard(FormModel& form, VariableStore& variables, ErrorTrap& trap);

    // Steps the manual score: 0 and 1 are A plus and minus one, 2 and 3 are B.
    void cmdMANSCORE(int index);
    // One step of the LIVE lamp: hidden for one, shown for the next.
    void blink();

 private:
    struct Side {
        QString letter;
        Control& inUse;
        Control& automatic;
        Control& manual;
    };
    Side sideOf(const TeamControls& team);
    void follow(Side& side);
    void setMode();
    [[nodiscard]] bool manualMode() const { return manualSwitch_.checked(); }

    FormModel& form_;
    VariableStore& variables_;
    Side a_;
    Side b_;
    Control& manualSwitch_;
    Control& lamp_;
    QTimer blinkTimer_{this};
    int blinks_ = 0;
};

}  // namespace zelvor
