#pragma once

#include "engine/show_state.h"
#include "form/form_model.h"

namespace zelvor {

// Shows the team names, @HTLNAMEEN and @ATLNAMEEN, above the players.
void showTeams(ShowState& state, FormModel& form);

}  // namespace zelvor
