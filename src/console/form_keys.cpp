#include "console/form_keys.h"

#include <QAbstractButton>
#include <QLineEdit>
#include <QScrollArea>
#include <limits>

#include "console/card_button.h"
#include "console/text_label.h"
#include "console_rules/card_console.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

const QKeySequence kPressKey(u"Ctrl+Return"_s);
const QKeySequence kRightKey(u"Ctrl+Shift+Return"_s);

// The Latin letter where a Greek keyboard has this one: X11 names keys by what they type.
int latinKey(int key) {
    constexpr QStringView kGreek = u"ΑΒΨΔΕΦΓΗΙΞΚΛΜΝΟΠΡΣΤΘΩΧΥΖ";
    constexpr QStringView kLatin = u"ABCDEFGHIJKLMNOPRSTUVXYZ";
    if (key > 0xFFFF) return key;
    const qsizetype place = kGreek.indexOf(QChar(static_cast<char16_t>(key)).toUpper());
    return place < 0 ? key : kLatin.at(place).unicode();
}

void pressButton(QAbstractButton& button) {
    if (auto* own = qobject_cast<ConsoleButton*>(&button)) return own->press();
    button.click();
}

}  // namespace

void pressWidget(QWidget& widget, Qt::MouseButton mouse) {
    if (auto* label = qobject_cast<TextLabel*>(&widget)) return label->press(mouse);
    auto* card = qobject_cast<CardButton*>(&widget);
    if (mouse == Qt::RightButton && card != nullptr) return card->small().press();
    if (auto* button = qobject_cast<QAbstractButton*>(&widget); button != nullptr && mouse == Qt::LeftButton)
        pressButton(*button);
}

FormKeys::FormKeys(QWidget& form, const FormModel& model) : form_(form) {
    for (const ControlRow& row : allControls()) {
        if (row.key.isEmpty()) continue;
        const bool isPressed = row.kind == ControlKind::Button || row.kind == ControlKind::CheckBox ||
                               row.kind == ControlKind::OptionButton || row.key.contains(u'|');
        for (int index = row.elements.first; index <= row.elements.last; ++index) {
            const Control& control = model.at(row, index);
            places_.try_emplace(QKeySequence(control.key()), Place{control.name(), index, !isPressed});
        }
    }
}

QKeySequence FormKeys::sequenceOf(const QKeyEvent& key) {
    const Qt::KeyboardModifiers modifiers = key.modifiers() & ~(Qt::KeypadModifier | Qt::GroupSwitchModifier);
    const int code = key.key() == Qt::Key_Enter ? static_cast<int>(Qt::Key_Return) : latinKey(key.key());
    return {QKeyCombination(modifiers, static_cast<Qt::Key>(code))};
}

bool FormKeys::has(const QKeySequence& key) const {
    return places_.contains(key) || key == kPressKey || key == kRightKey;
}

QWidget* FormKeys::widgetOf(const Place& place) const {
    for (QWidget* widget : form_.findChildren<QWidget*>(place.name)) {
        // An address stands on the cover as well: one of the two is enabled.
        if (widget->property("index").toInt() == place.index && widget->isEnabled()) return widget;
    }
    return nullptr;
}

void FormKeys::lead(QWidget& widget) const {
    for (const QWidget* panel = &widget; panel != nullptr; panel = panel->parentWidget()) {
        if (const auto tab = CardConsole::tabOf(panel->objectName())) {
            if (QWidget* button = widgetOf({controls.cmdTAB.name.toString(), *tab, false}))
                pressWidget(*button, Qt::LeftButton);
        }
    }
    widget.setFocus(Qt::ShortcutFocusReason);
    for (QWidget* above = widget.parentWidget(); above != nullptr; above = above->parentWidget()) {
        if (auto* area = qobject_cast<QScrollArea*>(above)) area->ensureWidgetVisible(&widget);
    }
}

bool FormKeys::press(const QKeySequence& key, QWidget* focus) const {
    if (key == kPressKey || key == kRightKey) {
        if (qobject_cast<QLineEdit*>(focus) != nullptr) return false;
        pressWidget(*focus, key == kPressKey ? Qt::LeftButton : Qt::RightButton);
        return true;
    }
    const auto found = places_.find(key);
    if (found == places_.end()) return false;
    QWidget* widget = widgetOf(found->second);
    if (widget == nullptr) return true;
    if (found->second.leadsTo) {
        lead(*widget);
        return true;
    }
    pressWidget(*widget, Qt::LeftButton);
    // From a tab the way leads on into its panel.
    if (found->second.name == controls.cmdTAB.name) widget->setFocus(Qt::TabFocusReason);
    return true;
}

void FormKeys::moveFocus(const QKeyEvent& key, QWidget* focus) const {
    if (key.key() == Qt::Key_Escape) return form_.setFocus();
    if (focus->objectName().isEmpty()) return;
    QPoint towards;
    switch (key.key()) {
        case Qt::Key_Left:
            towards = {-1, 0};
            break;
        case Qt::Key_Right:
            towards = {1, 0};
            break;
        case Qt::Key_Up:
            towards = {0, -1};
            break;
        case Qt::Key_Down:
            towards = {0, 1};
            break;
        default:
            return;
    }
    QWidget* nearest = nullptr;
    int least = std::numeric_limits<int>::max();
    for (QWidget* each : form_.findChildren<QWidget*>(focus->objectName())) {
        const QPoint way = each->mapToGlobal(each->rect().center()) - focus->mapToGlobal(focus->rect().center());
        const int ahead = QPoint::dotProduct(way, towards);
        const int aside = QPoint::dotProduct(way, {towards.y(), towards.x()});
        if (ahead <= 0 || !each->isVisible()) continue;
        const int distance = ahead + 4 * std::abs(aside);
        if (distance < least) {
            least = distance;
            nearest = each;
        }
    }
    if (nearest != nullptr) nearest->setFocus(Qt::TabFocusReason);
}

}  // namespace zelvor
