#pragma once

#include <QStringList>
#include <QTextStream>

namespace zelvor {

// The subcommand "zelvor as-run": lists what was on air on a day, sums it up and writes it into a database table. Gives
// the exit status. Throws UsageError.
int runAsRun(const QStringList& arguments, QTextStream& out, QTextStream& err);

}  // namespace zelvor
