#include "console_rules/presses.h"

#include <QScopedValueRollback>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace zelvor {

void Presses::press(const QString& name, const Presser& presser, std::function<void()> deed) {
    const qint64 waited = waited_ && presser.from.isEmpty() ? waited_() : 0;
    if (waited > kLongestWait) {
        tellLate(name, waited);
        return;
    }
    if (!isHeldUp()) heldUpBy_ = engine_.sendingByItself();
    if (!turning_ && !isHeldUp()) {
        carryOut(deed);
        return;
    }
    waiting_.push_back({name, std::move(deed), engine_.ports().clock.steadyMilliseconds() - waited});
    if (isHeldUp()) QTimer::singleShot(kLookInterval, this, &Presses::carryOutWaiting);
}

bool Presses::isHeldUp() const {
    return engine_.isRunning(heldUpBy_);
}

void Presses::tellLate(const QString& name, qint64 waited) {
    Q_EMIT late(name, QString::number(static_cast<double>(waited) / 1000, 'f', 1));
}

void Presses::clear(const std::function<void()>& deed) {
    waiting_.clear();
    engine_.program().clearing.begin();
    deed();
}

void Presses::carryOut(const std::function<void()>& deed) {
    const Clearing& clearing = engine_.program().clearing;
    const int before = clearing.count();
    turn();
    if (clearing.count() != before || engine_.program().closing.hasBegun()) return;
    // What has arrived meanwhile comes after this one, or inside it where it waits.
    QMetaObject::invokeMethod(this, &Presses::carryOutWaiting, Qt::QueuedConnection);
    deed();
    turn();
    carryOutWaiting();
}

void Presses::turn() {
    const QScopedValueRollback turning(turning_, true);
    engine_.ports().clock.turnEvents(1);
}

void Presses::carryOutWaiting() {
    while (!turning_ && !waiting_.empty()) {
        if (isHeldUp()) {
            QTimer::singleShot(kLookInterval, this, &Presses::carryOutWaiting);
            return;
        }
        const Waiting press = std::move(waiting_.front());
        waiting_.pop_front();
        const qint64 waited = engine_.ports().clock.steadyMilliseconds() - press.since;
        if (waited > kLongestWait) {
            tellLate(press.name, waited);
        } else {
            carryOut(press.deed);
        }
    }
}

}  // namespace zelvor
