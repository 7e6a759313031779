#pragma once

#include "rehearsal/command_table.h"

// The MIXER commands. Each gives the whole reply.
namespace zelvor::rehearsal {

// Any property made of numbers. Without numbers, tells the present ones; "DEFER" at the end keeps a change for COMMIT.
QString mixerProperty(const Command& command, Host& host);
QString mixerBlend(const Command& command, Host& host);
QString mixerMasterVolume(const Command& command, Host& host);
// Fills the picture with the first N x N layers.
QString mixerGrid(const Command& command, Host& host);
QString mixerCommit(const Command& command, Host& host);
// Without a layer: all of the channel.
QString mixerClear(const Command& command, Host& host);

}  // namespace zelvor::rehearsal
