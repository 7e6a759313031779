#pragma once

#include <QStringList>

#include "app_feed/live_options.h"
#include "command_line/host_port.h"

namespace zelvor {

// What the command line of `zelvor feed` asks for.
struct FeedOptions {
    static constexpr int kLastSecond = 60 * 60;  // where a clock that counts up ends
    static constexpr double kTopSpeed = 1000;

    HostPort to{QStringLiteral("127.0.0.1"), 7699};
    int from = 0;  // seconds on the clock
    bool up = false;
    double speed = 1;  // game seconds a second
    bool jitter = false;
    LiveOptions live;
    bool help = false;

    [[nodiscard]] int last() const { return up ? kLastSecond : 0; }
};

// Throws UsageError.
FeedOptions readFeedOptions(const QStringList& arguments);

// The text of `zelvor feed --help`.
QString feedHelp();

// Seconds on the clock as "9:58".
QString clockText(int seconds);

}  // namespace zelvor
