#include "console/key_repeats.h"

#include <QAbstractSpinBox>
#include <QLineEdit>
#include <QPlainTextEdit>

namespace zelvor {

bool KeyRepeats::isRepeat(const QKeyEvent& event) {
    if (event.type() == QEvent::KeyRelease) {
        released_ = event.key();
        releasedAt_ = event.timestamp();
        return false;
    }
    const bool sameMoment = event.timestamp() != 0 && event.key() == released_ && event.timestamp() == releasedAt_;
    return event.isAutoRepeat() || sameMoment;
}

bool repeatsWhenHeld(const QKeyEvent& event, const QObject* focus) {
    switch (event.key()) {
        case Qt::Key_Left:
        case Qt::Key_Right:
        case Qt::Key_Up:
        case Qt::Key_Down:
        case Qt::Key_PageUp:
        case Qt::Key_PageDown:
        case Qt::Key_Home:
        case Qt::Key_End:
        case Qt::Key_Tab:
        case Qt::Key_Backtab:
            return true;
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_Escape:
            return false;
        default:
            break;
    }
    const bool types = qobject_cast<const QLineEdit*>(focus) != nullptr ||
                       qobject_cast<const QPlainTextEdit*>(focus) != nullptr ||
                       qobject_cast<const QAbstractSpinBox*>(focus) != nullptr;
    const bool isText = !event.text().isEmpty() || event.key() == Qt::Key_Backspace || event.key() == Qt::Key_Delete;
    return types && isText && (event.modifiers() & Qt::AltModifier) == 0;
}

}  // namespace zelvor
