#include "console_rules/presses.h"

#include <QScopedValueRollback>

using namespace Qt::StringLiterals;

namespace zelvor {

void Presses::press(const QString& name, std::function<void()> deed) {
    const qint64 waited = waited_ ? waited_() : 0;
    if (waited > kLongestWait) {
        Q_EMIT late(name, QString::number(static_cast<double>(waited) / 1000, 'f', 1));
        return;
    }
    if (turning_) {
        waiting_.push_back(std::move(deed));
        return;
    }
    carryOut(deed);
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
        const std::function<void()> deed = std::move(waiting_.front());
        waiting_.pop_front();
        carryOut(deed);
    }
}

}  // namespace zelvor
