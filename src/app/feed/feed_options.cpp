#include "app_feed/feed_options.h"

#include <QRegularExpression>
#include <array>

#include "base/command_line.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

const std::array kOptions{
    CommandLine::Option{u"--to"_s, true},    CommandLine::Option{u"--from"_s, true},
    CommandLine::Option{u"--down"_s, false}, CommandLine::Option{u"--up"_s, false},
    CommandLine::Option{u"--speed"_s, true}, CommandLine::Option{u"--jitter"_s, false},
    CommandLine::Option{u"--help"_s, false},
};

// "9:58" in seconds, up to 60:00.
std::optional<int> clockSeconds(const QString& text) {
    static const QRegularExpression kClock(u"^([0-9]{1,2}):([0-5][0-9])$"_s);
    const auto match = kClock.match(text);
    if (!match.hasMatch()) return std::nullopt;
    const int seconds = match.captured(1).toInt() * 60 + match.captured(2).toInt();
    return seconds <= FeedOptions::kLastSecond ? std::optional(seconds) : std::nullopt;
}

// What is wrong with the command line beyond its option names; empty when nothing is.
QString readValues(const CommandLine& line, FeedOptions& options) {
    const QString to = line.value(u"--to").value_or(u"127.0.0.1:7699"_s);
    const qsizetype colon = to.lastIndexOf(u':');
    bool isNumber = false;
    options.host = to.left(colon);
    options.port = to.mid(colon + 1).toUShort(&isNumber);
    if (colon < 1 || !isNumber || options.port == 0) return u"--to takes HOST:PORT, not "_s + to;

    options.up = line.lastOf(std::array<QStringView, 2>{u"--down", u"--up"}) == u"--up";
    const QString from = line.value(u"--from").value_or(options.up ? u"0:00"_s : u"10:00"_s);
    const std::optional<int> seconds = clockSeconds(from);
    if (!seconds) return u"--from takes a clock from 0:00 to 60:00, not "_s + from;
    options.from = *seconds;

    const QString speed = line.value(u"--speed").value_or(u"1"_s);
    options.speed = speed.toDouble(&isNumber);
    if (!isNumber || !(options.speed > 0 && options.speed <= FeedOptions::kTopSpeed))
        return u"--speed takes a number above 0, up to 1000, not "_s + speed;
    options.jitter = line.has(u"--jitter");
    return {};
}

}  // namespace

std::optional<FeedOptions> parseFeedOptions(const QStringList& arguments, QTextStream& err) {
    const CommandLine line(arguments, kOptions);
    FeedOptions options;
    options.help = line.has(u"--help");
    if (options.help) return options;
    QString fault;
    if (!line.unknownOption().isEmpty()) {
        fault = u"no such option: "_s + line.unknownOption();
    } else if (!line.optionWithoutValue().isEmpty()) {
        fault = line.optionWithoutValue() + u" needs a value"_s;
    } else if (!line.rest().isEmpty()) {
        fault = u"not understood: "_s + line.rest().constFirst();
    } else {
        fault = readValues(line, options);
    }
    if (fault.isEmpty()) return options;
    err << "zelvor feed: " << fault << '\n';
    return std::nullopt;
}

QString feedHelp() {
    return uR"(usage: zelvor feed [options]

Sends the datagrams of a game clock ("t9:58t"), one for each second of the game.

  --to HOST:PORT  where to; 127.0.0.1:7699 without
  --from M:SS     the clock's first value; 10:00 without, 0:00 when counting up
  --down          counts down and ends at 0:00 (the default)
  --up            counts up and ends at 60:00
  --speed X       X game seconds a second, up to 1000
  --jitter        sends each datagram up to 0.4 game seconds late, as networks do

In a terminal the space bar stops the clock (it then sends "pause") and starts it again; q ends it.
)"_s;
}

QString clockText(int seconds) {
    return QString::number(seconds / 60) + u':' + QString::number(seconds % 60).rightJustified(2, u'0');
}

}  // namespace zelvor
