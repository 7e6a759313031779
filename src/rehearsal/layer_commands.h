#pragma once

#include "rehearsal/command_table.h"

// The commands for whole layers: what they show. Each gives the whole reply.
namespace zelvor::rehearsal {

QString play(const Command& command, Host& host);
QString load(const Command& command, Host& host);
QString loadBackground(const Command& command, Host& host);
QString pause(const Command& command, Host& host);
QString resume(const Command& command, Host& host);
QString stop(const Command& command, Host& host);
// Without a layer: the whole channel.
QString clear(const Command& command, Host& host);
// Runs the text in the page of the layer's template; any other source takes no notice.
QString call(const Command& command, Host& host);

}  // namespace zelvor::rehearsal
