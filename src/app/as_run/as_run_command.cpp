#include "app_as_run/as_run_command.h"

#include <QDir>
#include <QFile>

#include "app_as_run/as_run_options.h"
#include "app_as_run/as_run_report.h"
#include "app_as_run/as_run_table.h"
#include "as_run/as_run_file.h"
#include "base/run_time_error.h"
#include "data/pack_connection.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

constexpr int kTold = 0;
constexpr int kNotPossible = 1;

// The day of the newest record; not valid when there is none.
QDate newestDay(const AppFolder& folder) {
    const QDir records(folder.resolve(u"AS-RUN"_s));
    const QStringList names = records.entryList({u"2*.jsonl"_s}, QDir::Files, QDir::Name);
    return names.isEmpty() ? QDate() : QDate::fromString(names.constLast().left(10), Qt::ISODate);
}

bool isWanted(const AsRunCard& card, const AsRunOptions& options) {
    const auto has = [](const QString& text, const QString& part) { return text.contains(part, Qt::CaseInsensitive); };
    if (!has(card.caption, options.card) && !has(card.script, options.card)) return false;
    if (options.refused && !card.refused()) return false;
    if (!options.from.isEmpty())
        return card.by.compare(options.from, Qt::CaseInsensitive) == 0 || has(card.from, options.from);
    const bool byItself = card.by == u"timer" || card.by == u"clock" || card.by == u"feed";
    return options.all || !byItself || options.refused;
}

}  // namespace

int runAsRun(const QStringList& arguments, QTextStream& out, QTextStream& err) {
    const AsRunOptions options = readAsRunOptions(arguments);
    if (options.help) {
        out << asRunHelp();
        return kTold;
    }
    const AppFolder folder(options.appFolder);
    const QDate day = options.day.value_or(newestDay(folder));
    QFile file(AsRunFile::pathOf(folder, day));
    if (!day.isValid() || !file.open(QIODevice::ReadOnly)) {
        err << "zelvor as-run: no record "
            << (day.isValid() ? QDir::toNativeSeparators(file.fileName()) : u"in "_s + folder.path() + u"/AS-RUN"_s)
            << '\n';
        return kNotPossible;
    }
    const std::vector<AsRunCard> cards = readAsRun(file);
    std::vector<AsRunCard> wanted;
    std::ranges::copy_if(cards, std::back_inserter(wanted),
                         [&](const AsRunCard& card) { return isWanted(card, options); });
    if (options.csv) {
        printAsRunCsv(out, wanted);
    } else {
        printAsRun(out, wanted, options.lines);
        printAsRunSums(out, wanted);
    }
    out.flush();
    if (!options.into) return kTold;
    try {
        Session session(folder.path());
        session.setConnectionString(packConnection(folder, options.language, *options.into));
        writeAsRunTable(session, day, cards);
    } catch (const RunTimeError& error) {
        err << "zelvor as-run: " << error.text() << '\n';
        return kNotPossible;
    }
    return kTold;
}

}  // namespace zelvor
