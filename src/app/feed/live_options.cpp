#include "app_feed/live_options.h"

#include <QCoreApplication>
#include <QFileInfo>

#include "command_line/command_line.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

// What only means something beside something else.
void checkTogether(const CommandLine& line, const LiveOptions& live) {
    if (live.makeTables && !live.into) throw UsageError{u"--make-tables needs --into"_s};
    if (live.replaceTables && !live.makeTables) throw UsageError{u"--replace needs --make-tables"_s};
    if (live.source.isEmpty()) {
        for (const QString& needing : {u"--record"_s, u"--log"_s, u"--no-checksum"_s}) {
            if (line.has(needing)) throw UsageError{needing + u" needs --source"_s};
        }
        if (live.into && !live.makeTables) throw UsageError{u"--into needs --source or --make-tables"_s};
        return;
    }
    for (const QString& own : {u"--from"_s, u"--down"_s, u"--up"_s, u"--jitter"_s}) {
        if (line.has(own)) throw UsageError{own + u" belongs to a clock without --source"_s};
    }
}

}  // namespace

LiveOptions readLiveOptions(const CommandLine& line) {
    LiveOptions live;
    live.source = line.value(u"--source").value_or(QString());
    if (const auto into = line.number(u"--into", 0, INT16_MAX)) live.into = static_cast<qint16>(*into);
    live.appFolder = line.value(u"--app-folder").value_or(QCoreApplication::applicationDirPath());
    if (!QFileInfo(live.appFolder).isDir()) throw UsageError{u"no such folder: "_s + live.appFolder};
    live.appFolder = QFileInfo(live.appFolder).absoluteFilePath();
    live.language = line.value(u"--language").value_or(QString());
    live.recordFile = line.value(u"--record").value_or(QString());
    live.logFile = line.value(u"--log").value_or(QString());
    live.makeTables = line.has(u"--make-tables");
    live.replaceTables = line.has(u"--replace");
    live.checksums = !line.has(u"--no-checksum");
    checkTogether(line, live);
    return live;
}

}  // namespace zelvor
