#pragma once

#include "general_rules/grid_file.h"

namespace zelvor {

// What is wrong with each row, in words; empty for a sound one: a name that is missing, has no "@" or is another row's
// too, choices that Apply would not read as they are meant.
std::vector<QString> rowFaults(const std::vector<GeneralRow>& rows);

}  // namespace zelvor
