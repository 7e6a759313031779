#pragma once

#include <QDeadlineTimer>
#include <QObject>
#include <optional>

namespace zelvor {

// How long the mouse or key event that was delivered last had waited for it. The platform's time stamps are of a clock
// of its own; how far it lies behind ours is the shortest way that any event has had.
class InputTimes : public QObject {
    Q_OBJECT

 public:
    InputTimes();

    // Milliseconds from when the event happened until now; 0 where the platform's events carry no times.
    [[nodiscard]] qint64 waited() const;

 protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

 private:
    std::optional<qint64> behind_;    // our clock less the platform's
    std::optional<qint64> happened_;  // by our clock
};

}  // namespace zelvor
