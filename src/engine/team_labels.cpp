#include "engine/team_labels.h"

namespace zelvor {

void showTeams(ShowState& state, FormModel& form) {
    form.at(controls.lblHTEAM).setText(state.variables.GetVar(u"@HTLNAMEEN").text());
    form.at(controls.lblATEAM).setText(state.variables.GetVar(u"@ATLNAMEEN").text());
}

}  // namespace zelvor
