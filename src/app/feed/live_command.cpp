#include "app_feed/live_command.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QSysInfo>

#include "app_feed/live_feed.h"
#include "app_feed/live_source_choice.h"
#include "base/run_time_error.h"
#include "data/pack_connection.h"
#include "live/table_schema.h"
#include "system/terminal.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

// Throws RunTimeError.
QString connectionString(const LiveOptions& options) {
    return packConnection(AppFolder(options.appFolder), options.language, *options.into);
}

QString ownName() {
    return QSysInfo::machineHostName().remove(u'\'').left(40) + u" process "_s +
           QString::number(QCoreApplication::applicationPid());
}

// Rewrites one line of a terminal twice a second; elsewhere a line every five seconds where there are other words to
// say.
class StatusPrinter {
 public:
    StatusPrinter(const LiveFeed& feed, QTextStream& out, bool terminal) : feed_(feed), out_(out), terminal_(terminal) {
        QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { print(); });
        timer_.start(terminal ? 500 : 5000);
    }
    void print() {
        if (terminal_) {
            out_ << "\r\x1b[K" << feed_.statusLine();
        } else if (const QString news = feed_.news(); news != said_) {
            said_ = news;
            out_ << feed_.statusLine() << '\n';
        }
        out_.flush();
    }

 private:
    const LiveFeed& feed_;
    QTextStream& out_;
    bool terminal_;
    QString said_;
    QTimer timer_;
};

}  // namespace

FeedStatusCode makeTables(const LiveOptions& options, QTextStream& out, QTextStream& err) {
    try {
        Session session(options.appFolder);
        session.setConnectionString(connectionString(options));
        for (const QString& done : makeLiveTables(session, options.replaceTables)) out << done << '\n';
        out.flush();
        return FeedStatusCode::Done;
    } catch (const RunTimeError& error) {
        err << "zelvor feed: " << error.text() << '\n';
        return FeedStatusCode::NotPossible;
    }
}

FeedStatusCode runLive(const FeedOptions& options, const QHostAddress& host, QTextStream& out, QTextStream& err) {
    Refusals refusals;
    LiveFiles files;
    QString fault;
    const auto [source, decoder] = chooseSource(options.live, options.speed, refusals, fault);
    if (source) fault = files.open(source->kind(), options.live.recordFile, options.live.logFile);
    std::unique_ptr<TableWriter> writer;
    try {
        if (fault.isEmpty() && options.live.into) {
            writer = std::make_unique<TableWriter>(connectionString(options.live), options.live.appFolder, ownName());
        }
    } catch (const RunTimeError& error) {
        fault = error.text();
    }
    if (!fault.isEmpty()) {
        err << "zelvor feed: " << fault << '\n';
        return FeedStatusCode::NotPossible;
    }

    QEventLoop loop;
    TerminalKeys keys;
    LiveFeed feed(*source, *decoder, refusals, files, writer.get(), host, options.to.port);
    StatusPrinter printer(feed, out, outputIsTerminal());
    QObject::connect(&keys, &TerminalKeys::pressed, &loop, [&](char key) {
        if (key == 'q' || key == '\x03' || key == '\x04') loop.quit();
    });
    QObject::connect(source.get(), &LiveSource::ended, &loop, &QEventLoop::quit, Qt::QueuedConnection);
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, &loop, [&] {
        if (writer && writer->status().state == TableWriter::State::Refused) loop.quit();
    });
    watch.start(100);
    QMetaObject::invokeMethod(&feed, &LiveFeed::start, Qt::QueuedConnection);
    loop.exec();

    constexpr std::chrono::seconds kPatience{10};
    const bool written = !writer || writer->finish(kPatience);
    printer.print();
    out << '\n';
    if (writer && writer->status().state == TableWriter::State::Refused) {
        err << "zelvor feed: another feed writes these tables: " << writer->status().text << '\n';
        return FeedStatusCode::NotPossible;
    }
    if (written) return FeedStatusCode::Done;
    err << "zelvor feed: the end of the game is not in the tables: " << writer->status().text << '\n';
    return FeedStatusCode::NotPossible;
}

}  // namespace zelvor
