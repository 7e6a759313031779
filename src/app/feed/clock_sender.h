#pragma once

#include <QElapsedTimer>
#include <QHostAddress>
#include <QTimer>
#include <QUdpSocket>

#include "app_feed/feed_options.h"

namespace zelvor {

// Sends a running game clock, a datagram for each second of the game, without drift.
class ClockSender : public QObject {
    Q_OBJECT

 public:
    ClockSender(const FeedOptions& options, const QHostAddress& host);

    // Sends the first value and goes on until the last one.
    void start();
    // Stops the clock or starts it again. While it is stopped each datagram says "pause".
    void togglePause();

    [[nodiscard]] int sent() const { return sent_; }

 Q_SIGNALS:
    void shown(const QString& text);
    // The last value has been sent.
    void finished();

 private:
    void sendDue();
    void send(const QString& datagram);
    void schedule();

    FeedOptions options_;
    QHostAddress host_;
    QUdpSocket socket_{this};
    QTimer timer_{this};
    QElapsedTimer running_;
    qint64 steps_ = 0;  // game seconds since the start, pauses included
    qint64 dueAt_ = 0;  // of the next step, microseconds
    int seconds_;       // on the clock
    int sent_ = 0;
    bool paused_ = false;
};

}  // namespace zelvor
