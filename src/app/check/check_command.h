#pragma once

#include <QStringList>
#include <QTextStream>

namespace zelvor {

// `zelvor check`: reads packs without running them and prints what is wrong with them to `out`, a line each.
// arguments: behind the word "check". Returns the exit status: 0, or 1 when there is an error among the findings.
// Throws UsageError.
int runCheck(const QStringList& arguments, QTextStream& out, QTextStream& err);

}  // namespace zelvor
