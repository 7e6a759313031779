#pragma once

#include "app_check/pack_files.h"

namespace zelvor {

// Checks the CONNECTIONS.TXT of a pack, and that there is one. Nothing is connected.
void checkConnections(PackFiles& files, Findings& findings);

}  // namespace zelvor
