#pragma once

#include "feed/quiet_rules.h"

namespace zelvor {

// The two rows of player labels: the player chosen with the left button (and a second one with the right) is coloured
// and his label's tag becomes the automatic answers of the next card.
class PlayerLabels : public QuietRules {
    Q_OBJECT

 public:
    PlayerLabels(FormModel& form, ShowState& state, ErrorTrap& trap);

    // index: 0 to 23. A label without a caption is left alone.
    void lblAPLAYERS(int index, Qt::MouseButton button);
    void lblHPLAYERS(int index, Qt::MouseButton button);

 private:
    void choose(const TeamControls& own, const TeamControls& other, int index, Qt::MouseButton button);

    FormModel& form_;
    ShowState& state_;
};

}  // namespace zelvor
