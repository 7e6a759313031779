#pragma once

#include "rehearsal/command_table.h"

// The CG commands: templates on a layer. Each gives the whole reply.
namespace zelvor::rehearsal {

QString cgAdd(const Command& command, Host& host);
// PLAY alone is accepted on a layer without a template, where it does nothing.
QString cgPlay(const Command& command, Host& host);
QString cgUpdate(const Command& command, Host& host);
QString cgStop(const Command& command, Host& host);
QString cgNext(const Command& command, Host& host);
QString cgRemove(const Command& command, Host& host);
QString cgInvoke(const Command& command, Host& host);
QString cgClear(const Command& command, Host& host);

}  // namespace zelvor::rehearsal
