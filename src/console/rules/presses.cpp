#include "console_rules/presses.h"

#include <QScopedValueRollback>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace zelvor {

Presses::Presses(CardEngine& engine) : engine_(engine) {
    look_.setSingleShot(true);
    look_.setInterval(kLookInterval);
    connect(&look_, &QTimer::timeout, this, &Presses::carryOutWaiting);
    connect(&engine.program().databaseWait, &DatabaseWait::over, this, [this] {
        // The time of a statement does not make a press late: meanwhile the console is seen to take it.
        for (Waiting& press : waiting_) press.since = now();
        if (!waiting_.empty()) carryOutSoon();
    });
}

void Presses::press(const QString& name, const Presser& presser, std::function<void()> deed) {
    const bool isHis = presser.from.isEmpty();
    const qint64 waited = waited_ && isHis ? waited_() : 0;
    if (now() - waited >= toldLateAt_) {
        late_.clear();
        Q_EMIT made();
    }
    if (waited > kLongestWait) {
        tellLate(name, waited);
        return;
    }
    if (!isHis && mayComeFromOutside_) {
        deed = [this, presser, deed = std::move(deed)] {
            if (mayComeFromOutside_(presser)) deed();
        };
    }
    if (turning_ || isHeldUp(isHis) || engine_.program().databaseWait.isOn() || !waiting_.empty()) {
        wait({name, std::move(deed), now() - waited, isHis});
    } else {
        carryOut(deed);
        carryOutWaiting();
    }
}

void Presses::wait(Waiting press) {
    const auto place = press.isHis ? std::ranges::find(waiting_, false, &Waiting::isHis) : waiting_.end();
    waiting_.insert(place, std::move(press));
    tellWait();
    carryOutSoon();
}

void Presses::tellWait(bool another) {
    const bool waits = another || !waiting_.empty();
    engine_.program().databaseWait.setPressWaits(waits);
    if (waits) {
        engine_.program().pressRoom.make(now());
    } else {
        engine_.program().pressRoom.end();
    }
}

bool Presses::isHeldUp(bool isHis) {
    if (!isHis && engine_.isSending()) return true;
    // The one that held them up may have run inside another's pause.
    if (!engine_.isRunning(heldUpBy_)) heldUpBy_ = engine_.sendingByItself();
    return engine_.isRunning(heldUpBy_) || engine_.pausesInsideAPause();
}

qint64 Presses::now() const {
    return engine_.ports().clock.steadyMilliseconds();
}

void Presses::tellLate(const QString& name, qint64 waited) {
    late_ += name;
    toldLateAt_ = now();
    Q_EMIT late(late_, QString::number(static_cast<double>(waited) / 1000, 'f', 1));
}

void Presses::clear(const std::function<void()>& deed) {
    waiting_.clear();
    tellWait();
    engine_.program().clearing.begin();
    if (engine_.program().databaseWait.isOn()) {
        wait({u"CLEAR"_s, deed, now()});
    } else {
        deed();
    }
}

void Presses::carryOut(const std::function<void()>& deed) {
    const Clearing& clearing = engine_.program().clearing;
    const int before = clearing.count();
    tellWait(true);
    Q_EMIT turnBefore(true);
    turn();
    Q_EMIT turnBefore(false);
    tellWait();
    if (clearing.count() != before || engine_.program().closing.hasBegun()) return;
    // What has arrived meanwhile comes after this one, or inside it where it waits.
    carryOutSoon();
    deed();
    turn();
}

void Presses::turn() {
    const QScopedValueRollback turning(turning_, true);
    engine_.ports().clock.turnEvents(1);
}

void Presses::carryOutSoon() {
    QMetaObject::invokeMethod(this, &Presses::carryOutWaiting, Qt::QueuedConnection);
}

void Presses::carryOutWaiting() {
    while (!turning_ && !engine_.program().databaseWait.isOn() && !waiting_.empty()) {
        if (isHeldUp(waiting_.front().isHis)) return look_.start();
        const Waiting press = std::move(waiting_.front());
        waiting_.pop_front();
        tellWait();
        const qint64 waited = now() - press.since;
        if (waited > kLongestWait) {
            tellLate(press.name, waited);
        } else {
            carryOut(press.deed);
        }
    }
}

}  // namespace zelvor
