#pragma once

#include "base/app_folder.h"
#include "engine/show_state.h"
#include "form/form_model.h"

namespace zelvor {

// The on-air line of the console: the label lblONAIR with the lamp beside it, and the caption of the card on air.

// "ON AIR" in the on-air colours, with the card's caption.
void SHOW_ONAIR(const ShowState& state, FormModel& form, const QString& cardFile);
// "NO DATA" in its own colours, with the caption of the card that found nothing.
void showNoData(const ShowState& state, FormModel& form, const QString& cardFile);
// Empty and green: nothing is on air.
void showClear(FormModel& form);
// The caption of the first card that runs this script, in the current set before the others; else the script's name.
QString captionOf(const ShowState& state, const QString& cardFile);
// True while the operator has locked the on-air label.
bool onAirLocked(const FormModel& form);

// Forms the path of the RTX output and reports success. Meant: it shows nothing itself.
bool SHOW_RTX(const AppFolder& folder);

// Labels the card buttons and the selectors from the current set of the card table.
void showCurrentSet(const ShowState& state, FormModel& form);

}  // namespace zelvor
