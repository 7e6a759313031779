#pragma once

#include "rehearsal/command_table.h"

// The commands for whole channels. Each gives the whole reply.
namespace zelvor::rehearsal {

QString clearAll(const Command& command, Host& host);
// Two layers or, without layers, two channels; with "TRANSFORMS", what the mixer does with them too.
QString swapPlaces(const Command& command, Host& host);
// Outputs (screens, files, cards): kept and told, shown nowhere.
QString addOutput(const Command& command, Host& host);
QString removeOutput(const Command& command, Host& host);
QString setMode(const Command& command, Host& host);
// SET with any other word.
QString setUnknown(const Command& command, Host& host);
QString lockAcquire(const Command& command, Host& host);
QString lockRelease(const Command& command, Host& host);
QString lockClear(const Command& command, Host& host);

}  // namespace zelvor::rehearsal
