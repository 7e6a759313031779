#include "console/key_filter.h"

#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <algorithm>

namespace zelvor {

namespace {

bool isInput(const QWidget* widget) {
    return qobject_cast<const QLineEdit*>(widget) != nullptr || qobject_cast<const QComboBox*>(widget) != nullptr ||
           qobject_cast<const QPlainTextEdit*>(widget) != nullptr ||
           qobject_cast<const QAbstractItemView*>(widget) != nullptr ||
           qobject_cast<const QAbstractSpinBox*>(widget) != nullptr ||
           qobject_cast<const QCheckBox*>(widget) != nullptr || qobject_cast<const QRadioButton*>(widget) != nullptr;
}

// The window that the widget is part of; for a list or menu that has popped up, and for a box that waits for nobody,
// the one it stands over.
const QWidget* formOf(const QWidget* widget) {
    const QWidget* window = widget->window();
    const auto standsOver = [](const QWidget& each) {
        return each.windowType() == Qt::Popup || (each.windowType() == Qt::Dialog && !each.isModal());
    };
    while (standsOver(*window) && window->parentWidget() != nullptr) window = window->parentWidget()->window();
    return window;
}

// Closes the lists and menus that have popped up: they would lie over what a card asks.
void closePopups() {
    while (QWidget* popup = QApplication::activePopupWidget()) {
        if (!popup->close()) return;
    }
}

}  // namespace

KeyFilter::KeyFilter(QWidget& form) : QObject(&form), form_(form) {
    QApplication::instance()->installEventFilter(this);
}

// True for a press that nobody is to see.
bool KeyFilter::windowSees(const QKeyEvent& key) {
    if (repeats_.isRepeat(key)) return !repeatsWhenHeld(key, QApplication::focusWidget());
    const bool isClear =
        key.key() == Qt::Key_Delete && key.modifiers().testFlags(Qt::ControlModifier | Qt::ShiftModifier);
    if (isClear && key.type() == QEvent::KeyPress) Q_EMIT clearKey();
    return isClear;
}

bool KeyFilter::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress && event->type() != QEvent::KeyRelease) return false;
    if (watched->isWindowType()) return windowSees(*static_cast<const QKeyEvent*>(event));
    if (event->type() == QEvent::KeyRelease) return false;
    auto* widget = qobject_cast<QWidget*>(watched);
    if (widget == nullptr) return false;
    const QWidget* form = formOf(widget);
    if (form != &form_ && std::find(beside_.begin(), beside_.end(), form) == beside_.end()) return false;
    const auto* key = static_cast<QKeyEvent*>(event);
    if (key->key() >= Qt::Key_F1 && key->key() <= Qt::Key_F10) {
        if (key->isAutoRepeat()) return true;
        closePopups();
        Q_EMIT functionKey(key->key() - Qt::Key_F1 + 1);
        return true;
    }
    if (widget->window() != &form_) return false;
    if (key->key() >= Qt::Key_F11 && key->key() <= Qt::Key_F35) return true;
    if (key->key() == Qt::Key_Tab || key->key() == Qt::Key_Backtab) return false;
    return !isInput(widget);
}

}  // namespace zelvor
