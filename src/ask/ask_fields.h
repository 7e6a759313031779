#pragma once

#include "base/program.h"
#include "engine/show_state.h"

namespace zelvor {

// The lines of a field's block below its "%:number".
constexpr int kAskFieldLines = 5;

// Reads the lines of an ASKFIELDS.TXT; lineNo is the number of the line being read, from 1. Throws RunTimeError at the
// first fault (9, 13 and 6 for a number or pair, 62 for a block cut short); what was read before it stays.
void readAskFields(const QStringList& lines, std::vector<AskField>& fields, int& lineNo);

// Reads the current pack's ASKFIELDS.TXT into ASK_FIELDS. A missing file, a field number that is none or a block cut
// short is reported by the trap; what was read before it stays.
void LOAD_ASK(ShowState& state, Program& program);

}  // namespace zelvor
