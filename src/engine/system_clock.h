#pragma once

#include <QDeadlineTimer>

#include "engine/ports.h"
#include "engine/show_state.h"

namespace zelvor {

// The wall clock and the thread's own event loop.
class SystemClock : public Clock {
 public:
    // state: its `closing` ends every wait.
    explicit SystemClock(const ShowState& state) : state_(state) {}

    [[nodiscard]] QDateTime now() const override;
    [[nodiscard]] qint64 secondsSinceEpoch() const override { return QDateTime::currentSecsSinceEpoch(); }
    [[nodiscard]] qint64 steadyMilliseconds() const override { return QDeadlineTimer::current().deadline(); }
    bool turnEvents(int turns) override;
    bool waitBriefly() override;

 private:
    const ShowState& state_;
};

}  // namespace zelvor
