#pragma once

#include <QDateTime>
#include <QHostAddress>
#include <QObject>
#include <QTimer>
#include <optional>

#include "engine/ports.h"
#include "feed/game_feed.h"
#include "form/form_model.h"

namespace zelvor {

// What the operator is told of the game feed: a few words in lblFEED, all of it in lblFEEDDETAIL. While the feed has
// fallen silent or is not understood the game time is red.
class FeedStatus : public QObject {
    Q_OBJECT

 public:
    static constexpr qint64 kSilence = 3000;    // milliseconds
    static constexpr qint64 kNonsense = 3000;   // milliseconds of refused messages alone: the feed is not understood
    static constexpr qint64 kDelay = 1000;      // milliseconds from which a message's wait is told
    static constexpr int kCheckInterval = 500;  // milliseconds

    FeedStatus(const ShowState& state, FormModel& form, Clock& clock);

    void bound(quint16 port);
    // reason: in words, "port in use".
    void notBound(const QString& reason);
    // A datagram has arrived; it may have to wait before it is handled.
    void arrived(const QHostAddress& sender);
    // That many are waiting, the oldest since then (steady milliseconds; any while none waits).
    void waits(std::size_t count, qint64 since);
    // The time card runs; no datagram is handled meanwhile.
    void cardBegins();
    void cardEnds();
    void handled(GameFeed::Outcome outcome);
    // Looks whether the feed has fallen silent, waits or is held; tmrFEED calls it.
    void check();

    [[nodiscard]] qint64 handledCount() const { return handled_; }
    [[nodiscard]] qint64 refusedCount() const { return refused_; }
    [[nodiscard]] bool silent() const { return silent_; }

 private:
    struct Status {
        QString words;
        Control::Role role;
    };

    void setSilent(bool silent);
    [[nodiscard]] bool isUnderstood() const { return !refusedSince_ || lastRefused_ - *refusedSince_ < kNonsense; }
    [[nodiscard]] bool isPast(qint64 since, qint64 longest) const;
    void show();
    void showDetail();
    [[nodiscard]] Status status() const;

    const ShowState& state_;
    Clock& clock_;
    Control& status_;
    Control& detail_;
    Control& time_;
    QTimer timer_{this};
    QString binding_;  // empty until bind was tried
    QString reason_;   // why the feed is not bound
    QDateTime lastHeard_;
    qint64 lastHeardSteady_ = 0;
    QString sender_;  // of the last datagram
    std::size_t waiting_ = 0;
    qint64 waitingSince_ = 0;
    std::optional<qint64> cardSince_;     // while the time card runs
    std::optional<qint64> refusedSince_;  // the first of the messages refused since one was understood
    qint64 lastRefused_ = 0;
    qint64 handled_ = 0;
    qint64 refused_ = 0;
    bool paused_ = false;
    bool silent_ = false;
    bool timeMarked_ = false;
};

}  // namespace zelvor
