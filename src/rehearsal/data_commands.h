#pragma once

#include "rehearsal/command_table.h"

// The DATA commands: data sets stored by name. Each gives the whole reply.
namespace zelvor::rehearsal {

QString dataStore(const Command& command, Host& host);
QString dataRetrieve(const Command& command, Host& host);
QString dataRemove(const Command& command, Host& host);
QString dataList(const Command& command, Host& host);

}  // namespace zelvor::rehearsal
