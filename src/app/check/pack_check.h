#pragma once

#include "app_check/findings.h"
#include "base/app_folder.h"

namespace zelvor {

// Checks one pack: its card table, ask fields, scripts, and the variables that they share.
void checkPack(const AppFolder& folder, const QString& code, Findings& findings);

// Checks every pack of PACKS.TXT.
void checkPacks(const AppFolder& folder, Findings& findings);

}  // namespace zelvor
