#pragma once

#include <QStringList>
#include <QTextStream>

namespace zelvor {

// `zelvor new`: makes the smallest pack that runs. arguments: behind the word "new". Returns the exit status: 0, or 1
// when a file could not be written. Throws UsageError, also for a pack that is there already.
int runNewPack(const QStringList& arguments, QTextStream& out, QTextStream& err);

}  // namespace zelvor
