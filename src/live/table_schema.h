#pragma once

#include <QStringList>

#include "data/session.h"

namespace zelvor {

// Makes the tables that a live game is written into; those that are there are kept, or made anew, empty, with
// `replace`. What was done, a line for each table. Throws RunTimeError in the driver's words.
QStringList makeLiveTables(Session& session, bool replace);

}  // namespace zelvor
