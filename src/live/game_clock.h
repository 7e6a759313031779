#pragma once

#include <QtGlobal>
#include <optional>

namespace zelvor {

// The game clock, counting down: what the source told last, and where it has run to since. Times of day are
// milliseconds from some moment on.
class GameClock {
 public:
    // A clock that runs is held when its source has said nothing for this long: nobody confirms it any more.
    static constexpr qint64 kRunsUnheard = 10'000;

    // False when the clock has gone up although the period is the same (by more than a second, and not from 0:00); it
    // is set all the same.
    bool set(int hundredths, bool running, int period, qint64 now);
    // Stops it where it is, or lets it go on.
    void setRunning(bool running, qint64 now);
    // The source has said something, whatever it was. A clock that was held goes on from where it is.
    void heard(qint64 now);

    // nullopt before anything was told.
    [[nodiscard]] std::optional<int> hundredths(qint64 now) const;
    [[nodiscard]] bool running() const { return running_; }

 private:
    std::optional<int> told_;
    qint64 toldAt_ = 0;
    qint64 heardAt_ = 0;
    int period_ = 0;
    bool running_ = false;
};

}  // namespace zelvor
