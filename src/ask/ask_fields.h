#pragma once

#include "base/app_folder.h"
#include "base/error_trap.h"
#include "base/text_file.h"
#include "engine/show_state.h"

namespace zelvor {

// Reads the current pack's ASKFIELDS.TXT into ASK_FIELDS. A missing file, a field number that is none or a block cut
// short is reported by the trap; what was read before it stays.
void LOAD_ASK(ShowState& state, const AppFolder& folder, const TextFiles& files, ErrorTrap& trap);

}  // namespace zelvor
