#pragma once

#include <QStringList>
#include <QTextStream>

namespace zelvor {

// `zelvor feed`: sends the datagrams of a game clock, and brings live data to the console. arguments: behind the word
// "feed". Needs an event loop's application; returns 0 when the clock or the recording has run to its end or the
// operator has ended it, 1 when something named is not there or another feed is at work. Throws UsageError.
int runFeed(const QStringList& arguments, QTextStream& out, QTextStream& err);

}  // namespace zelvor
