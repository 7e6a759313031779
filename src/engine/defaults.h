#pragma once

#include <array>

#include "base/app_folder.h"
#include "engine/show_state.h"
#include "form/form_model.h"

namespace zelvor {

// The variables of the effect boxes cmbFADE(0) to cmbFADE(3).
constexpr std::array<QStringView, 4> kEffectVariables{u"@FADE_IN", u"@FADE_OUT", u"@ROLL_SPEED", u"@WIPE"};

// The first values of the console's own variables, in the order of the start-up.

// @APP_PATH, before anything else is loaded.
void writeAppPath(ShowState& state, const AppFolder& folder);
// The last card's tag, scores, the timer (and its label) and the starting fives.
void writeGameDefaults(ShowState& state, FormModel& form);
// The screen mode, with the buttons in its colours.
void writeScreenModeDefault(ShowState& state, FormModel& form);
// The crawl's speed, after the packs and cards are loaded.
void writeCrawlDefault(ShowState& state);
// The effect speeds.
void writeEffectDefaults(ShowState& state);

// Shows which of the screen-mode buttons is chosen.
void paintScreenMode(FormModel& form, bool wide);

// All of them, for a program without a form to lay out in between.
void writeAllDefaults(ShowState& state, FormModel& form, const AppFolder& folder);

}  // namespace zelvor
