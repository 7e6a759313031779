#pragma once

#include <QDeadlineTimer>
#include <ctime>

#include "base/closing.h"
#include "engine/ports.h"

namespace zelvor {

// The wall clock and the thread's own event loop.
class SystemClock : public Clock {
 public:
    // closing: ends every wait.
    explicit SystemClock(const Closing& closing) : closing_(closing) {}

    [[nodiscard]] QDateTime now() const override;
    [[nodiscard]] qint64 secondsSinceEpoch() const override { return std::time(nullptr); }
    [[nodiscard]] qint64 steadyMilliseconds() const override { return QDeadlineTimer::current().deadline(); }
    bool turnEvents(int turns, qint64 longest) override;
    bool waitBriefly() override;

 private:
    const Closing& closing_;
};

}  // namespace zelvor
