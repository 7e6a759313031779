#include "console/paint_hold.h"

#include <QCoreApplication>
#include <QEvent>
#include <QWidget>
#include <utility>

namespace zelvor {

PaintHold::PaintHold(QWidget& window) : window_(window) {
    window.installEventFilter(this);
    longest_.setSingleShot(true);
    longest_.setInterval(kLongest);
    connect(&longest_, &QTimer::timeout, this, [this] { hold(false); });
}

void PaintHold::hold(bool on) {
    holds_ = on;
    if (on) return longest_.start();
    longest_.stop();
    if (std::exchange(wanted_, false)) {
        QCoreApplication::postEvent(&window_, new QEvent(QEvent::UpdateRequest), Qt::LowEventPriority);
    }
}

bool PaintHold::eventFilter(QObject* watched, QEvent* event) {
    if (!holds_ || event->type() != QEvent::UpdateRequest) return QObject::eventFilter(watched, event);
    wanted_ = true;
    return true;
}

}  // namespace zelvor
