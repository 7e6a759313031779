#pragma once

#include "rehearsal/command_table.h"

// What the server tells about itself. Each gives the whole reply.
namespace zelvor::rehearsal {

// The version of the real server that this one answers like.
QString version(const Command& command, Host& host);
// A line a channel; for one channel or layer, what it shows, as XML in one line.
QString info(const Command& command, Host& host);
QString infoPaths(const Command& command, Host& host);
QString infoConfig(const Command& command, Host& host);
QString glInfo(const Command& command, Host& host);
QString logLevel(const Command& command, Host& host);
// For what needs no doing here: says "OK".
QString acknowledge(const Command& command, Host& host);
// For the lists of media, which a server makes only with a scanner beside it.
QString unavailable(const Command& command, Host& host);

}  // namespace zelvor::rehearsal
