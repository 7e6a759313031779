#pragma once

#include <QElapsedTimer>
#include <QHostAddress>
#include <QTimer>
#include <QUdpSocket>

#include "app_feed/live_files.h"
#include "live/live_decoder.h"
#include "live/table_writer.h"
#include "live_sources/live_source.h"

namespace zelvor {

// Brings a source of live data to the console: its clock as datagrams, and the game into the tables.
class LiveFeed : public QObject {
    Q_OBJECT

 public:
    // While a source that is heard shows the same second for longer than this, the datagram says "pause".
    static constexpr qint64 kStandsStill = 1500;     // milliseconds
    static constexpr qint64 kPauseRepeated = 1000;   // milliseconds
    static constexpr qint64 kHeardLately = 10'000;   // milliseconds
    static constexpr qint64 kMessageComplete = 250;  // milliseconds without a byte

    // writer: nullptr when no tables are wanted.
    LiveFeed(LiveSource& source, LiveDecoder& decoder, Refusals& refusals, LiveFiles& files, TableWriter* writer,
             const QHostAddress& host, quint16 port);

    void start();

    // What a terminal says: what is heard, from where, how old it is, what was refused.
    [[nodiscard]] QString statusLine() const;
    // What of it is worth a line of its own when it changes: no clock, score and age.
    [[nodiscard]] QString news() const { return link_ + statusWords(); }

 private:
    [[nodiscard]] QString statusWords() const;
    void take(const QByteArray& message);
    void connected();
    void lost(const QString& why);
    void tick();
    void sendClock(qint64 now);
    void publish();
    void noteRefusals();
    [[nodiscard]] qint64 sinceHeard() const;

    LiveSource& source_;
    LiveDecoder& decoder_;
    Refusals& refusals_;
    LiveFiles& files_;
    TableWriter* writer_;
    QHostAddress host_;
    quint16 port_;
    QUdpSocket socket_{this};
    QTimer timer_{this};
    QElapsedTimer running_;
    QElapsedTimer heard_;    // since the last message
    QElapsedTimer sent_;     // since the last datagram
    QElapsedTimer changed_;  // since the clock's last second
    QString clock_;          // as sent last
    QString link_;           // "connected", "lost: ..."
    int refusedBefore_ = 0;
};

}  // namespace zelvor
