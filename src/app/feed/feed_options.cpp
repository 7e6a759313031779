#include "app_feed/feed_options.h"

#include <QRegularExpression>
#include <array>

#include "command_line/command_line.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

const std::array kOptions{
    CommandLine::Option{u"--to"_s, true},           CommandLine::Option{u"--from"_s, true},
    CommandLine::Option{u"--down"_s, false},        CommandLine::Option{u"--up"_s, false},
    CommandLine::Option{u"--speed"_s, true},        CommandLine::Option{u"--jitter"_s, false},
    CommandLine::Option{u"--source"_s, true},       CommandLine::Option{u"--into"_s, true},
    CommandLine::Option{u"--app-folder"_s, true},   CommandLine::Option{u"--language"_s, true},
    CommandLine::Option{u"--record"_s, true},       CommandLine::Option{u"--log"_s, true},
    CommandLine::Option{u"--make-tables"_s, false}, CommandLine::Option{u"--replace"_s, false},
    CommandLine::Option{u"--no-checksum"_s, false}, CommandLine::Option{u"--help"_s, false},
};

// "9:58" in seconds, up to 60:00.
std::optional<int> clockSeconds(const QString& text) {
    static const QRegularExpression kClock(u"^([0-9]{1,2}):([0-5][0-9])$"_s);
    const auto match = kClock.match(text);
    if (!match.hasMatch()) return std::nullopt;
    const int seconds = match.captured(1).toInt() * 60 + match.captured(2).toInt();
    return seconds <= FeedOptions::kLastSecond ? std::optional(seconds) : std::nullopt;
}

std::optional<double> gameSpeed(const QString& text) {
    bool isNumber = false;
    const double speed = text.toDouble(&isNumber);
    return isNumber && speed > 0 && speed <= FeedOptions::kTopSpeed ? std::optional(speed) : std::nullopt;
}

}  // namespace

FeedOptions readFeedOptions(const QStringList& arguments) {
    const CommandLine line(arguments, kOptions);
    FeedOptions options;
    options.help = line.has(u"--help");
    if (options.help) return options;
    line.check();
    if (!line.rest().isEmpty()) throw UsageError{u"not understood: "_s + line.rest().constFirst()};

    options.to = line.hostPort(u"--to").value_or(options.to);
    options.up = line.lastOf(std::array<QStringView, 2>{u"--down", u"--up"}) == u"--up";
    options.from = line.read(u"--from", u"a clock from 0:00 to 60:00"_s, clockSeconds).value_or(options.up ? 0 : 600);
    options.speed = line.read(u"--speed", u"a number above 0, up to 1000"_s, gameSpeed).value_or(options.speed);
    options.jitter = line.has(u"--jitter");
    options.live = readLiveOptions(line);
    return options;
}

QString feedHelp() {
    return uR"(usage: zelvor feed [options]

Sends the datagrams of a game clock ("t9:58t"): its own clock's, or that of a source of live data.
The game of such a source it also writes into the tables that cards query.

  --to HOST:PORT    where to; 127.0.0.1:7699 without
  --from M:SS       the clock's first value; 10:00 without, 0:00 when counting up
  --down            counts down and ends at 0:00 (the default)
  --up              counts up and ends at 60:00
  --speed X         X game seconds a second, up to 1000; of a recording too
  --jitter          sends each datagram up to 0.4 game seconds late, as networks do
  --source SOURCE   livestats:HOST:PORT, daktronics:/DEVICE, daktronics:HOST:PORT, or the file of a recording
  --into N          writes the game into the tables of the pack's connection N
  --app-folder DIR  whose MODULES hold the packs (default: the program's own folder)
  --language CODE   whose CONNECTIONS.TXT (default: the first pack of PACKS.TXT)
  --make-tables     makes the tables first; those that are there are kept
  --replace         with --make-tables: makes all of them anew, empty
  --record FILE     records what is heard, for --source
  --log FILE        keeps every message, with the time of day
  --no-checksum     takes a scoreboard's packets whatever their checksum

In a terminal the space bar stops the clock (it then sends "pause") and starts it again; q ends it. What a source sends,
and how to connect it, is told in docs/live-data.md.

Exit status: 0 the clock, the recording or the operator has ended it, 1 something named is not there or another feed is
at work, 2 wrong usage.
)"_s;
}

QString clockText(int seconds) {
    return QString::number(seconds / 60) + u':' + QString::number(seconds % 60).rightJustified(2, u'0');
}

}  // namespace zelvor
