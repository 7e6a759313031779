#include "app_feed/clock_sender.h"

#include <QRandomGenerator>

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

constexpr double kMicroseconds = 1'000'000;
constexpr double kLargestDelay = 0.4;  // of a game second

}  // namespace

ClockSender::ClockSender(const FeedOptions& options, const QHostAddress& host)
    : options_(options), host_(host), seconds_(options.from) {
    timer_.setSingleShot(true);
    timer_.setTimerType(Qt::PreciseTimer);
    connect(&timer_, &QTimer::timeout, this, &ClockSender::sendDue);
}

void ClockSender::start() {
    running_.start();
    sendDue();
}

void ClockSender::togglePause() {
    paused_ = !paused_;
    if (paused_) send(u"pause"_s);
}

void ClockSender::sendDue() {
    while (running_.nsecsElapsed() / 1000 >= dueAt_) {
        if (paused_) {
            send(u"pause"_s);
        } else {
            send(u't' + clockText(seconds_) + u't');
            if (seconds_ == options_.last()) {
                Q_EMIT finished();
                return;
            }
            seconds_ += options_.up ? 1 : -1;
        }
        schedule();
    }
    timer_.start(static_cast<int>((dueAt_ - running_.nsecsElapsed() / 1000 + 999) / 1000));
}

void ClockSender::schedule() {
    ++steps_;
    const double delay = options_.jitter ? QRandomGenerator::global()->generateDouble() * kLargestDelay : 0;
    dueAt_ = static_cast<qint64>((static_cast<double>(steps_) + delay) * kMicroseconds / options_.speed);
}

void ClockSender::send(const QString& datagram) {
    socket_.writeDatagram(datagram.toLatin1(), host_, options_.to.port);
    ++sent_;
    Q_EMIT shown(datagram);
}

}  // namespace zelvor
