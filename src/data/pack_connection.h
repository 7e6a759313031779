#pragma once

#include <QString>

#include "base/app_folder.h"

namespace zelvor {

// The connection string with that number in the CONNECTIONS.TXT of a pack, for programs beside the console. language:
// the pack's; empty for the first one of PACKS.TXT whose folder exists. Throws RunTimeError when there is none.
QString packConnection(const AppFolder& folder, QString language, qint16 number);

}  // namespace zelvor
