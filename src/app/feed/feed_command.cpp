#include "app_feed/feed_command.h"

#include <QEventLoop>
#include <QHostInfo>

#include "app_feed/clock_sender.h"
#include "app_feed/console_lock.h"
#include "app_feed/live_command.h"
#include "system/terminal.h"
#include "system/termination.h"

using namespace Qt::StringLiterals;

namespace zelvor {

int runFeed(const QStringList& arguments, QTextStream& out, QTextStream& err) {
    constexpr int kNotPossible = 1;
    const FeedOptions options = readFeedOptions(arguments);
    if (options.help) {
        out << feedHelp();
        return 0;
    }
    if (options.live.makeTables) {
        const FeedStatusCode made = makeTables(options.live, out, err);
        if (made != FeedStatusCode::Done || options.live.source.isEmpty()) return static_cast<int>(made);
    }
    const QHostInfo host = QHostInfo::fromName(options.to.host);
    if (host.addresses().isEmpty()) {
        err << "zelvor feed: " << options.to.host << ": " << host.errorString() << '\n';
        return kNotPossible;
    }

    const QHostAddress address = host.addresses().constFirst();
    ConsoleLock lock(address, options.to.port);
    if (QString holder; !lock.take(holder)) {
        err << "zelvor feed: another feed sends to " << options.to.text() << ": " << holder << '\n';
        return kNotPossible;
    }
    const Termination termination;
    if (!options.live.source.isEmpty()) return static_cast<int>(runLive(options, address, out, err));

    QEventLoop loop;
    ClockSender sender(options, address);
    TerminalKeys keys;
    out << "sending " << clockText(options.from) << " to " << clockText(options.last()) << " to " << options.to.text()
        << (keys.available() ? "; space stops and starts the clock, q ends\n" : "\n");
    out.flush();
    if (keys.available()) {
        QObject::connect(&sender, &ClockSender::shown, &loop, [&](const QString& text) {
            out << '\r' << text.leftJustified(10);
            out.flush();
        });
        QObject::connect(&keys, &TerminalKeys::pressed, &loop, [&](char key) {
            if (key == ' ') sender.togglePause();
            if (key == 'q' || key == '\x03' || key == '\x04') loop.quit();
        });
    }
    QObject::connect(&sender, &ClockSender::finished, &loop, &QEventLoop::quit, Qt::QueuedConnection);
    QMetaObject::invokeMethod(&sender, &ClockSender::start, Qt::QueuedConnection);
    loop.exec();
    out << (keys.available() ? "\n" : "") << sender.sent() << " datagrams sent\n";
    return 0;
}

}  // namespace zelvor
