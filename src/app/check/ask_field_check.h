#pragma once

#include <QSet>

#include "app_check/findings.h"
#include "app_check/pack_files.h"
#include "app_check/variable_use.h"

namespace zelvor {

// Checks the pack's ASKFIELDS.TXT with the engine's own reader, field by field; gives the numbers that it describes.
QSet<int> checkAskFields(PackFiles& files, VariableUse& variables, Findings& findings);

}  // namespace zelvor
