#include "console/accessibility.h"

#include <QAbstractItemView>
#include <QAccessibleWidget>
#include <QComboBox>
#include <QLineEdit>

#include "console/card_button.h"
#include "console/text_label.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

// What can be pressed, beside being given the keyboard.
class Pressable : public QAccessibleWidget {
 public:
    using QAccessibleWidget::QAccessibleWidget;

    [[nodiscard]] QStringList actionNames() const override {
        return QStringList{pressAction()} + QAccessibleWidget::actionNames();
    }
    void doAction(const QString& action) override {
        if (action != pressAction()) return QAccessibleWidget::doAction(action);
        if (widget()->isEnabled()) press();
    }

 protected:
    virtual void press() = 0;
};

class AccessibleButton : public Pressable {
 public:
    explicit AccessibleButton(ConsoleButton& button)
        : Pressable(&button, button.isTab() ? QAccessible::PageTab : QAccessible::Button), button_(button) {}

    [[nodiscard]] QAccessible::State state() const override {
        QAccessible::State state = Pressable::state();
        state.selectable = button_.isTab();
        state.selected = button_.isTab() && button_.isOn();
        state.checked = !button_.isTab() && button_.isOn();
        return state;
    }

 protected:
    void press() override { button_.press(); }

 private:
    ConsoleButton& button_;
};

// A label that does something when it is pressed is a button.
class AccessibleLabel : public Pressable {
 public:
    explicit AccessibleLabel(TextLabel& label)
        : Pressable(&label, label.focusPolicy() == Qt::NoFocus ? QAccessible::StaticText : QAccessible::Button),
          label_(label) {}

    [[nodiscard]] QString text(QAccessible::Text kind) const override {
        const QString told = Pressable::text(kind);
        return kind == QAccessible::Name && told.isEmpty() ? label_.text() : told;
    }
    [[nodiscard]] QStringList actionNames() const override {
        return role() == QAccessible::Button ? Pressable::actionNames() : QStringList();
    }

 protected:
    void press() override { label_.press(Qt::LeftButton); }

 private:
    TextLabel& label_;
};

// Qt names a list by what is chosen in it.
class AccessibleList : public Pressable {
 public:
    explicit AccessibleList(QComboBox& list) : Pressable(&list, QAccessible::ComboBox), list_(list) {}

    [[nodiscard]] QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Value ? list_.currentText() : Pressable::text(kind);
    }
    [[nodiscard]] int childCount() const override { return list_.isEditable() ? 2 : 1; }
    [[nodiscard]] QAccessibleInterface* child(int index) const override {
        QObject* part = list_.view();
        if (index == 1) part = list_.lineEdit();
        return QAccessible::queryAccessibleInterface(part);
    }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* child) const override {
        return child->object() == list_.lineEdit() ? 1 : 0;
    }

 protected:
    void press() override { list_.showPopup(); }

 private:
    QComboBox& list_;
};

QAccessibleInterface* describe(const QString& className, QObject* object) {
    auto* widget = qobject_cast<QWidget*>(object);
    if (widget == nullptr) return nullptr;
    if (className == u"zelvor::ConsoleButton") return new AccessibleButton(*qobject_cast<ConsoleButton*>(widget));
    if (className == u"zelvor::TextLabel") return new AccessibleLabel(*qobject_cast<TextLabel*>(widget));
    if (className == u"QComboBox") return new AccessibleList(*qobject_cast<QComboBox*>(widget));
    if (className == u"zelvor::MainWindow") return new QAccessibleWidget(widget, QAccessible::Window);
    if (className == u"zelvor::PanelFrame") return new QAccessibleWidget(widget, QAccessible::Grouping);
    return nullptr;
}

}  // namespace

void describeWidgets() {
    QAccessible::installFactory(describe);
}

}  // namespace zelvor
