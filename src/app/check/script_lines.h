#pragma once

#include <vector>

#include "app_check/pack_files.h"
#include "app_check/script_facts.h"
#include "engine/card_script.h"

namespace zelvor {

// A line as the engine numbers them, and where it stands.
struct PlacedLine {
    ScriptLine content;
    Place place;
    bool included = false;
};

// What stands before the first "~".
QString firstItem(const ScriptLine& line);

// Whether the engine reads the line as an INCLUDE.
bool isInclude(const ScriptLine& line);

// The lines of a script in the order in which the engine reads them, those of its includes with it. Notes what was
// read in `facts`, and includes that do not exist. Throws RunTimeError when the script cannot be read.
std::vector<PlacedLine> readScriptLines(PackFiles& files, const QString& path, ScriptFacts& facts);

}  // namespace zelvor
