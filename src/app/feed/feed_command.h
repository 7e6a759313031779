#pragma once

#include <QStringList>
#include <QTextStream>

namespace zelvor {

// `zelvor feed`: sends the datagrams of a venue's game clock, for rehearsals. arguments: behind the word "feed". Needs
// an event loop's application; returns 0 when the clock has run to its end or the operator has ended it, 1 when the
// host is unknown. Throws UsageError.
int runFeed(const QStringList& arguments, QTextStream& out, QTextStream& err);

}  // namespace zelvor
