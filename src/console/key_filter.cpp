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

}  // namespace

KeyFilter::KeyFilter(QWidget& form) : QObject(&form), form_(form) {
    QApplication::instance()->installEventFilter(this);
}

bool KeyFilter::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress) return false;
    auto* widget = qobject_cast<QWidget*>(watched);
    if (widget == nullptr) return false;
    const bool inForm = widget->window() == &form_;
    if (!inForm && std::find(beside_.begin(), beside_.end(), widget->window()) == beside_.end()) return false;
    const auto* key = static_cast<QKeyEvent*>(event);
    if (key->key() >= Qt::Key_F1 && key->key() <= Qt::Key_F10) {
        if (!key->isAutoRepeat()) Q_EMIT functionKey(key->key() - Qt::Key_F1 + 1);
        return true;
    }
    if (!inForm) return false;
    if (key->key() >= Qt::Key_F11 && key->key() <= Qt::Key_F35) return true;
    if (key->key() == Qt::Key_Tab || key->key() == Qt::Key_Backtab) return false;
    return !isInput(widget);
}

}  // namespace zelvor
