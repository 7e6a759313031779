#pragma once

#include "app_check/findings.h"
#include "app_check/pack_files.h"
#include "app_check/script_facts.h"

namespace zelvor {

// Checks the pack's CARDS.TXT with the engine's own reader, line by line, and that the cards it names exist. Gives
// those.
std::vector<NamePlace> checkCardTable(PackFiles& files, Findings& findings);

}  // namespace zelvor
