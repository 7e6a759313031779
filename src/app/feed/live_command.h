#pragma once

#include <QHostAddress>
#include <QTextStream>

#include "app_feed/feed_options.h"

namespace zelvor {

enum class FeedStatusCode { Done = 0, NotPossible = 1 };

// Makes the tables of the connection that was named, saying what it did.
FeedStatusCode makeTables(const LiveOptions& options, QTextStream& out, QTextStream& err);

// Brings the source that was named to the console, until a recording or the operator ends it.
FeedStatusCode runLive(const FeedOptions& options, const QHostAddress& host, QTextStream& out, QTextStream& err);

}  // namespace zelvor
