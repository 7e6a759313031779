#include "live/game_clock.h"

#include <algorithm>

namespace zelvor {

bool GameClock::set(int hundredths, bool running, int period, qint64 now) {
    constexpr int kSecond = 100;
    const int before = this->hundredths(now).value_or(0);
    const bool jumped = before > 0 && period == period_ && hundredths > before + kSecond;
    told_ = hundredths;
    toldAt_ = heardAt_ = now;
    running_ = running;
    period_ = period;
    return !jumped;
}

void GameClock::setRunning(bool running, qint64 now) {
    if (running == running_) return;
    told_ = hundredths(now);
    toldAt_ = now;
    running_ = running;
}

void GameClock::heard(qint64 now) {
    if (now > heardAt_ + kRunsUnheard) {
        told_ = hundredths(now);
        toldAt_ = now;
    }
    heardAt_ = now;
}

std::optional<int> GameClock::hundredths(qint64 now) const {
    if (!told_ || !running_) return told_;
    const qint64 ran = std::min(now, heardAt_ + kRunsUnheard) - toldAt_;
    return static_cast<int>(std::clamp<qint64>(*told_ - ran / 10, 0, *told_));
}

}  // namespace zelvor
