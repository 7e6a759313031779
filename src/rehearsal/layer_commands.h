#pragma once

#include "rehearsal/command_table.h"

// The commands for whole layers: what they show and how the mixer shows it. Each gives the whole reply.
namespace zelvor::rehearsal {

QString play(const Command& command, Host& host);
QString load(const Command& command, Host& host);
QString loadBackground(const Command& command, Host& host);
QString pause(const Command& command, Host& host);
QString resume(const Command& command, Host& host);
QString stop(const Command& command, Host& host);
// Without a layer: the whole channel.
QString clear(const Command& command, Host& host);

// Without a value these tell the present one.
QString mixerOpacity(const Command& command, Host& host);
QString mixerFill(const Command& command, Host& host);
QString mixerVolume(const Command& command, Host& host);
QString mixerKeyer(const Command& command, Host& host);
QString mixerClear(const Command& command, Host& host);
// For what a page cannot show: says "OK" and does nothing.
QString acknowledge(const Command& command, Host& host);

}  // namespace zelvor::rehearsal
