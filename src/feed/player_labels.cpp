#include "feed/player_labels.h"

#include "engine/auto_tags.h"

using namespace Qt::StringLiterals;

namespace zelvor {

PlayerLabels::PlayerLabels(FormModel& form, ShowState& state, ErrorTrap& trap)
    : QuietRules(trap), form_(form), state_(state) {}

void PlayerLabels::lblAPLAYERS(int index, Qt::MouseButton button) {
    quietly(u"lblAPLAYERS_MouseDown"_s, [&] { choose(kAwayControls, kHomeControls, index, button); });
}

void PlayerLabels::lblHPLAYERS(int index, Qt::MouseButton button) {
    quietly(u"lblHPLAYERS_MouseDown"_s, [&] { choose(kHomeControls, kAwayControls, index, button); });
}

void PlayerLabels::choose(const TeamControls& own, const TeamControls& other, int index, Qt::MouseButton button) {
    Control& chosen = form_.at(own.players, index);
    if (chosen.text().isEmpty()) return;
    const bool left = button == Qt::LeftButton;
    const bool right = button == Qt::RightButton;
    if (left) {
        for (Control* label : form_.named(own.players)) {
            if (label != &chosen) label->setForeColour(colours::kWhite);
        }
    }
    for (Control* label : form_.named(other.players)) label->setForeColour(colours::kWhite);
    if (left) {
        chosen.setForeColour(colours::kGreen);
        form_.at(own.team).setForeColour(colours::kGreen);
    }
    if (right) chosen.setForeColour(colours::kRed);
    form_.at(other.team).setForeColour(colours::kWhite);
    // The second player of a card is its "O": "P" is taken by the one chosen with the left button.
    setAutoTags(state_.variables, chosen.tag(), right ? KeyChange{u"P", u"O"} : KeyChange{});
    state_.console.playerSelected = true;
}

}  // namespace zelvor
