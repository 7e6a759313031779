#pragma once

#include <QObject>
#include <optional>
#include <utility>

namespace zelvor {

// Room for a press that waits for its turn: meanwhile no card that runs by itself begins, so that one that is fired
// with every message of the feed does not keep the press waiting. Half a second at most: many presses do not stop the
// clock on air.
class PressRoom : public QObject {
    Q_OBJECT

 public:
    static constexpr qint64 kLongest = 500;  // milliseconds

    // now: steady milliseconds. Again while it is made: nothing.
    void make(qint64 now) {
        if (!since_) since_ = now;
    }
    void end() {
        if (std::exchange(since_, std::nullopt)) Q_EMIT ended();
    }
    // now: steady milliseconds.
    [[nodiscard]] bool isMade(qint64 now) const { return since_ && now - *since_ < kLongest; }

 Q_SIGNALS:
    void ended();

 private:
    std::optional<qint64> since_;
};

}  // namespace zelvor
