#pragma once

#include <QObject>
#include <QTimer>
#include <map>

#include "engine/card_engine.h"

namespace zelvor {

// Runs the cards that run by themselves: timed cards, clock card, time card. One that the database has not answered in
// time twice in a row is left out for a while, longer each time, until it was answered again; lblBACKOFF says so.
class UnattendedCards : public QObject {
    Q_OBJECT

 public:
    static constexpr int kFirstPause = 10'000;    // milliseconds
    static constexpr int kLongestPause = 60'000;  // milliseconds

    explicit UnattendedCards(CardEngine& engine);

    // Whether one may begin: none does while the database is waited for or a press waits for its turn.
    [[nodiscard]] bool mayBegin() const {
        return !engine_.program().databaseWait.isOn() && !engine_.program().pressRoom.isMade(now());
    }
    // Only while one may begin.
    void run(const QString& card, Asker::Kind kind);

 Q_SIGNALS:
    // The database is no longer waited for, or no press any more.
    void mayBeginAgain();

 private:
    struct Trouble {
        int inARow = 0;
        bool now = false;     // in the run that is under way
        qint64 pausedTo = 0;  // by the steady clock
    };

    void take(const QString& card, Trouble& trouble);
    void showPaused();
    [[nodiscard]] qint64 now() const { return engine_.ports().clock.steadyMilliseconds(); }

    CardEngine& engine_;
    std::map<QString, Trouble> troubles_;  // by script
    QTimer shown_;
};

}  // namespace zelvor
