#include "console/input_times.h"

#include <QGuiApplication>
#include <QInputEvent>
#include <QTimer>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

// Longer no event waits: the platform's clock has begun anew.
constexpr qint64 kImpossible = 600'000;  // milliseconds

qint64 now() {
    return QDeadlineTimer::current().deadline();
}

}  // namespace

InputTimes::InputTimes() {
    // Without a display there is no such clock.
    if (QGuiApplication::platformName() != u"offscreen"_s) QGuiApplication::instance()->installEventFilter(this);
}

qint64 InputTimes::waited() const {
    return happened_ ? std::max<qint64>(0, now() - *happened_) : 0;
}

bool InputTimes::eventFilter(QObject* watched, QEvent* event) {
    if (!watched->isWindowType() || !event->isInputEvent()) return false;
    const auto stamp = static_cast<qint64>(static_cast<const QInputEvent*>(event)->timestamp());
    if (stamp == 0) return false;
    const qint64 distance = now() - stamp;
    if (!behind_ || distance < *behind_ || distance - *behind_ > kImpossible) behind_ = distance;
    happened_ = stamp + *behind_;
    // What is pressed in a later turn, by a screen reader or a long touch, has not waited since then.
    QTimer::singleShot(0, this, [this] { happened_.reset(); });
    return false;
}

}  // namespace zelvor
