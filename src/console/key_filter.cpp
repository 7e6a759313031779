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
#include <array>
#include <utility>

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

bool isInput(const QWidget* widget) {
    return qobject_cast<const QLineEdit*>(widget) != nullptr || qobject_cast<const QComboBox*>(widget) != nullptr ||
           qobject_cast<const QPlainTextEdit*>(widget) != nullptr ||
           qobject_cast<const QAbstractItemView*>(widget) != nullptr ||
           qobject_cast<const QAbstractSpinBox*>(widget) != nullptr ||
           qobject_cast<const QCheckBox*>(widget) != nullptr || qobject_cast<const QRadioButton*>(widget) != nullptr;
}

// A key, or the Shift beside Alt, that changes the desktop's keyboard layout: X11 names it ISO_Group_Latch to
// ISO_Last_Group_Lock.
bool changesLayout(const QKeyEvent& key) {
    constexpr quint32 kFirst = 0xfe06;
    constexpr quint32 kLast = 0xfe0f;
    return key.nativeVirtualKey() >= kFirst && key.nativeVirtualKey() <= kLast;
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

KeyFilter::KeyFilter(QWidget& form, const FormModel& model) : QObject(&form), form_(form), formKeys_(form, model) {
    QApplication::instance()->installEventFilter(this);
}

std::span<const KeyFilter::WindowKey> KeyFilter::windowKeys() {
    static constexpr std::array kKeys{
        WindowKey{u"F12", QT_TRANSLATE_NOOP("console", "Opens or closes the sheet of keys"), &KeyFilter::sheetKey},
        WindowKey{u"Ctrl+K", QT_TRANSLATE_NOOP("console", "Finds cards, scripts, commands and variables"),
                  &KeyFilter::findKey},
        WindowKey{u"Ctrl+F11", QT_TRANSLATE_NOOP("console", "Fills the screen without a frame, or gives it back"),
                  &KeyFilter::fullScreenKey},
    };
    return kKeys;
}

bool KeyFilter::pressCombination(const QKeyEvent& key, QWidget* focus) {
    if (layoutChanged_) return true;
    const QKeySequence pressed = FormKeys::sequenceOf(key);
    for (const WindowKey& each : windowKeys()) {
        if (QKeySequence(each.key.toString()) != pressed) continue;
        Q_EMIT(this->*each.pressed)();
        return true;
    }
    return formKeys_.press(pressed, focus);
}

// With Alt+Shift as the desktop's switch, a letter comes without its Shift: it would be another deed than the one
// meant.
void KeyFilter::watchLayout(const QKeyEvent& key) {
    const bool isAltsEnd = key.type() == QEvent::KeyRelease && (key.key() == Qt::Key_Alt || key.key() == Qt::Key_Meta);
    if (isAltsEnd || !key.modifiers().testFlag(Qt::AltModifier)) layoutChanged_ = false;
    if (!changesLayout(key) || key.type() != QEvent::KeyPress) return;
    layoutChanged_ = key.modifiers().testFlag(Qt::AltModifier);
    if (layoutChanged_) letAltGo();
}

void KeyFilter::watchAlt(const QKeyEvent& key) {
    // Shift makes Meta of Alt where it was pressed first.
    if (key.key() != Qt::Key_Alt && key.key() != Qt::Key_Meta) {
        if (!key.modifiers().testFlag(Qt::AltModifier)) letAltGo();
        return;
    }
    const bool held = key.type() == QEvent::KeyPress && QApplication::activeWindow() == &form_ &&
                      (key.key() == Qt::Key_Alt || key.modifiers().testFlag(Qt::ShiftModifier));
    if (held == isAltHeld_) return;
    isAltHeld_ = held;
    Q_EMIT altHeld(held);
}

void KeyFilter::letAltGo() {
    if (std::exchange(isAltHeld_, false)) Q_EMIT altHeld(false);
}

// True for a press that nobody is to see.
bool KeyFilter::windowSees(const QKeyEvent& key) {
    watchAlt(key);
    watchLayout(key);
    if (repeats_.isRepeat(key)) {
        const bool isDeed = QApplication::activeWindow() == &form_ && formKeys_.has(FormKeys::sequenceOf(key));
        return isDeed || !repeatsWhenHeld(key, QApplication::focusWidget());
    }
    const bool isClear =
        key.key() == Qt::Key_Delete && key.modifiers().testFlags(Qt::ControlModifier | Qt::ShiftModifier);
    if (isClear && key.type() == QEvent::KeyPress) Q_EMIT clearKey();
    return isClear;
}

bool KeyFilter::eventFilter(QObject* watched, QEvent* event) {
    if (watched == &form_ && event->type() == QEvent::WindowDeactivate) letAltGo();
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
    return widget->window() == &form_ && formSees(*key, widget);
}

bool KeyFilter::formSees(const QKeyEvent& key, QWidget* focus) {
    if (pressCombination(key, focus)) return true;
    if (key.key() >= Qt::Key_F11 && key.key() <= Qt::Key_F35) return true;
    if (key.key() == Qt::Key_Tab || key.key() == Qt::Key_Backtab) return false;
    if (isInput(focus)) return false;
    formKeys_.moveFocus(key, focus);
    return true;
}

}  // namespace zelvor
