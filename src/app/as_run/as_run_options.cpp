#include "app_as_run/as_run_options.h"

#include <QFileInfo>
#include <array>

#include "command_line/command_line.h"

using namespace Qt::StringLiterals;

namespace zelvor {

AsRunOptions readAsRunOptions(const QStringList& arguments) {
    static const std::array kOptions{CommandLine::Option{u"--app-folder"_s, true},
                                     CommandLine::Option{u"--user-folder"_s},
                                     CommandLine::Option{u"--csv"_s},
                                     CommandLine::Option{u"--lines"_s},
                                     CommandLine::Option{u"--all"_s},
                                     CommandLine::Option{u"--card"_s, true},
                                     CommandLine::Option{u"--from"_s, true},
                                     CommandLine::Option{u"--refused"_s},
                                     CommandLine::Option{u"--into"_s, true},
                                     CommandLine::Option{u"--language"_s, true},
                                     CommandLine::Option{u"--help"_s},
                                     CommandLine::Option{u"-h"_s}};
    const CommandLine line(arguments, kOptions);
    AsRunOptions options;
    options.help = line.has(u"--help") || line.has(u"-h");
    if (options.help) return options;
    line.check();
    options.appFolder = line.appFolder();
    if (!QFileInfo(options.appFolder).isDir()) throw UsageError{u"no such folder: "_s + options.appFolder};
    if (line.rest().size() > 1) throw UsageError{u"one DAY at most is to be named"_s};
    if (!line.rest().isEmpty()) {
        const QDate day = QDate::fromString(line.rest().constFirst(), Qt::ISODate);
        if (!day.isValid()) throw UsageError{u"DAY is to be written as 2026-11-21, not "_s + line.rest().constFirst()};
        options.day = day;
    }
    options.csv = line.has(u"--csv");
    options.lines = line.has(u"--lines");
    options.all = line.has(u"--all");
    options.refused = line.has(u"--refused");
    options.card = line.value(u"--card").value_or(QString());
    options.from = line.value(u"--from").value_or(QString());
    if (const auto number = line.number(u"--into", 0, INT16_MAX)) options.into = static_cast<qint16>(*number);
    options.language = line.value(u"--language").value_or(QString());
    return options;
}

QString asRunHelp() {
    return uR"(usage: zelvor as-run [options] [DAY]

Tells what was on air on a day, by the record that the console keeps.
Each card with who fired it, how it ended and how long its graphic stood, then sums by card and by sponsor.

  DAY                  the day on which the console was started, as 2026-11-21 (default: the newest record)
  --app-folder DIR     the application folder, which holds AS-RUN (default: the program's own)
  --user-folder        the user's own folder, ~/.local/share/zelvor-cards
  --card TEXT          only cards whose caption or script holds this text
  --from WHO           only cards that were asked for so: button, key, clear, proposal, menu, start, timer, clock, feed,
                       remote, or an address of one from outside
  --refused            only cards of which a line was refused or not sent
  --all                also the cards that timers and clocks fire by themselves
  --lines              below each card its lines and the replies to them
  --csv                comma-separated values in place of the list, without sums
  --into N             writes the whole day into the table as_run of the pack's database connection N as well
  --language CODE      the pack whose CONNECTIONS.TXT holds that connection (default: the first pack)

Exit status: 0, 1 when there is no record or the database does not take it, 2 for wrong usage.
)"_s;
}

}  // namespace zelvor
