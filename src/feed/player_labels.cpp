#include "feed/player_labels.h"

#include "engine/auto_tags.h"

using namespace Qt::StringLiterals;

namespace zelvor {

PlayerLabels::PlayerLabels(FormModel& form, ShowState& state, ErrorTrap& trap)
    : QuietRules(trap), form_(form), state_(state) {}

void PlayerLabels::lblAPLAYERS(int index, Qt::MouseButton button) {
    quietly(u"lblAPLAYERS_MouseDown"_s, [&] { choose(u"A"_s, u"H"_s, index, button); });
}

void PlayerLabels::lblHPLAYERS(int index, Qt::MouseButton button) {
    quietly(u"lblHPLAYERS_MouseDown"_s, [&] { choose(u"H"_s, u"A"_s, index, button); });
}

void PlayerLabels::choose(const QString& side, const QString& otherSide, int index, Qt::MouseButton button) {
    const QString players = u"lbl"_s + side + u"PLAYERS"_s;
    Control& chosen = form_.at(players, index);
    if (chosen.text().isEmpty()) return;
    const bool left = button == Qt::LeftButton;
    const bool right = button == Qt::RightButton;
    if (left) {
        for (Control* label : form_.named(players)) {
            if (label != &chosen) label->setForeColour(colours::kWhite);
        }
    }
    for (Control* label : form_.named(u"lbl"_s + otherSide + u"PLAYERS"_s)) label->setForeColour(colours::kWhite);
    if (left) {
        chosen.setForeColour(colours::kGreen);
        form_.at(u"lbl"_s + side + u"TEAM"_s).setForeColour(colours::kGreen);
    }
    if (right) chosen.setForeColour(colours::kRed);
    form_.at(u"lbl"_s + otherSide + u"TEAM"_s).setForeColour(colours::kWhite);
    // The second player of a card is its "O": "P" is taken by the one chosen with the left button.
    setAutoTags(state_.variables, chosen.tag(), right ? KeyChange{u"P", u"O"} : KeyChange{});
    state_.console.playerSelected = true;
}

}  // namespace zelvor
