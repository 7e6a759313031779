#pragma once

#include <QByteArray>

#include "live/game_clock.h"
#include "live/live_game.h"
#include "live/refusals.h"

namespace zelvor {

// Makes a game out of what a source sends. Bad input is counted among the refusals and leaves the game as it is.
class LiveDecoder {
 public:
    explicit LiveDecoder(Refusals& refusals) : refusals_(refusals) {}
    LiveDecoder(const LiveDecoder&) = delete;
    LiveDecoder& operator=(const LiveDecoder&) = delete;
    virtual ~LiveDecoder() = default;

    // message: one of the source's, or a piece of its bytes. now: milliseconds from some moment on.
    virtual void take(const QByteArray& message, qint64 now) = 0;
    // The source has been quiet for a moment: no piece of a message is on its way.
    virtual void settle(qint64 /*now*/) {}

    // Its clock and time of day are left to the caller.
    [[nodiscard]] const LiveGame& game() const { return game_; }
    [[nodiscard]] const GameClock& clock() const { return clock_; }

 protected:
    void setClock(int hundredths, bool running, qint64 now) {
        if (!clock_.set(hundredths, running, game_.period.value_or(0), now)) {
            refusals_.count(QStringLiteral("clock gone up"));
        }
    }

    Refusals& refusals_;
    LiveGame game_;
    GameClock clock_;
};

}  // namespace zelvor
