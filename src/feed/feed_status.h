#pragma once

#include <QDateTime>
#include <QObject>
#include <QTimer>

#include "engine/ports.h"
#include "feed/game_feed.h"
#include "form/form_model.h"

namespace zelvor {

// What the operator is told of the game feed: a few words in lblFEED, all of it in lblFEEDDETAIL. While the feed has
// fallen silent the game time is red.
class FeedStatus : public QObject {
    Q_OBJECT

 public:
    static constexpr qint64 kSilence = 3000;    // milliseconds
    static constexpr int kCheckInterval = 500;  // milliseconds

    FeedStatus(const ShowState& state, FormModel& form, Clock& clock);

    void bound(quint16 port);
    // reason: in words, "port in use".
    void notBound(const QString& reason);
    // A datagram has arrived; it may have to wait before it is handled.
    void arrived();
    void handled(GameFeed::Outcome outcome);
    // Looks whether the feed has fallen silent; tmrFEED calls it.
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
    qint64 handled_ = 0;
    qint64 refused_ = 0;
    bool paused_ = false;
    bool silent_ = false;
};

}  // namespace zelvor
