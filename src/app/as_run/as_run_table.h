#pragma once

#include <QDate>
#include <vector>

#include "as_run/as_run_reader.h"
#include "data/session.h"

namespace zelvor {

// Writes a day's cards into the table as_run, which is made when it is missing; what the table held of that day is
// replaced, all of it or nothing. Throws RunTimeError in the driver's words.
void writeAsRunTable(Session& session, QDate day, const std::vector<AsRunCard>& cards);

}  // namespace zelvor
