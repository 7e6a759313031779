#pragma once

#include <QStringList>
#include <QTextStream>
#include <optional>

namespace zelvor {

// What the command line of `zelvor feed` asks for.
struct FeedOptions {
    static constexpr int kLastSecond = 60 * 60;  // where a clock that counts up ends
    static constexpr double kTopSpeed = 1000;

    QString host;
    quint16 port = 0;
    int from = 0;  // seconds on the clock
    bool up = false;
    double speed = 1;  // game seconds a second
    bool jitter = false;
    bool help = false;

    [[nodiscard]] int last() const { return up ? kLastSecond : 0; }
};

// nullopt after saying on `err` what is wrong with the arguments.
std::optional<FeedOptions> parseFeedOptions(const QStringList& arguments, QTextStream& err);

// The text of `zelvor feed --help`.
QString feedHelp();

// Seconds on the clock as "9:58".
QString clockText(int seconds);

}  // namespace zelvor
