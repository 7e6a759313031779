#pragma once

#include "rehearsal/command_table.h"

// What the server tells about itself. Each gives the whole reply.
namespace zelvor::rehearsal {

QString version(const Command& command, Host& host);
// A line a channel; for one channel or layer, what it shows, as XML in one line.
QString info(const Command& command, Host& host);

}  // namespace zelvor::rehearsal
