#include "console/paint_hold.h"

#include <QCoreApplication>
#include <QEvent>
#include <QWidget>
#include <utility>

namespace zelvor {

PaintHold::PaintHold(QWidget& window) : window_(window) {
    window.installEventFilter(this);
}

void PaintHold::hold(bool on) {
    holds_ = on;
    if (!holds_ && std::exchange(wanted_, false)) {
        QCoreApplication::postEvent(&window_, new QEvent(QEvent::UpdateRequest), Qt::LowEventPriority);
    }
}

bool PaintHold::eventFilter(QObject* watched, QEvent* event) {
    if (!holds_ || event->type() != QEvent::UpdateRequest) return QObject::eventFilter(watched, event);
    wanted_ = true;
    return true;
}

}  // namespace zelvor
