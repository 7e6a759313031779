#include "console/mirror.h"

#include <QAbstractItemView>
#include <QAction>
#include <QSignalBlocker>
#include <QWheelEvent>
#include <utility>

using namespace Qt::StringLiterals;

namespace zelvor {

using Property = Control::Property;

namespace {

std::optional<QColor> shown(std::optional<Colour> colour) {
    return colour ? std::optional(theme::colour(*colour)) : std::nullopt;
}

// Calls apply(property) for every change of the control while the widget lives, and once for each property now.
template <class Apply>
void follow(Control& control, QWidget* widget, Apply apply) {
    for (const Property property : {Property::Items, Property::Text, Property::BackColour, Property::Visible,
                                    Property::Enabled, Property::Checked, Property::State, Property::Role})
        apply(property);
    QObject::connect(&control, &Control::changed, widget, [apply](Control*, Property property) { apply(property); });
}

// What is the same for widgets of every kind.
void applyCommon(const Control& control, QWidget* widget, Property property) {
    // Shown before it stands in a panel it would come up as a window of its own; it shows with its panel.
    if (property == Property::Visible && (widget->parentWidget() != nullptr || !control.visible()))
        widget->setVisible(control.visible());
    if (property == Property::Enabled) widget->setEnabled(control.enabled());
    if (property != Property::Text) return;
    // What is typed is told as the box's value.
    const bool nameHoldsText = control.kind() != Control::Kind::TextBox && !control.text().isEmpty();
    widget->setAccessibleName(nameHoldsText ? control.hint() + u": "_s + control.shownText() : control.hint());
}

// The colour of a label's text: good news are green, bad news red, waiting is amber; its words say the same.
theme::Role textRole(const Control& control, theme::Role plain) {
    switch (control.role()) {
        case Control::Role::Plain:
            return plain;
        case Control::Role::Good:
            return theme::Role::Good;
        case Control::Role::Waiting:
            return theme::Role::Wait;
        case Control::Role::Bad:
            return theme::Role::Bad;
        case Control::Role::Off:
            return theme::Role::Muted;
    }
    Q_UNREACHABLE();
}

bool isColour(Property property) {
    return property == Property::BackColour || property == Property::ForeColour;
}

}  // namespace

Control& Mirrors::begin(QWidget* widget, const ControlRow& row, int index) const {
    Control& control = form_.at(row, index);
    widget->setObjectName(control.name());
    widget->setProperty("index", index);
    widget->setToolTip(control.tip());
    return control;
}

TextLabel* Mirrors::label(const ControlRow& row, int index, const TextLabel::Look& look) const {
    auto* widget = new TextLabel(look);
    Control& control = begin(widget, row, index);
    widget->setHint(control.tip());
    if (!row.key.isEmpty()) widget->setFocusPolicy(Qt::TabFocus);
    follow(control, widget, [&control, widget, plain = look.text](Property property) {
        applyCommon(control, widget, property);
        if (property == Property::Text) widget->setText(control.shownText());
        if (property == Property::Role) widget->setTextRole(textRole(control, plain));
        if (isColour(property)) widget->setColours(shown(control.backColour()), shown(control.foreColour()));
    });
    QObject::connect(widget, &TextLabel::mousePressed, widget, [&events = events_, &control](Qt::MouseButton button) {
        events.mouseDown(control, button);
        if (button == Qt::LeftButton) events.click(control);
    });
    return widget;
}

TextLabel* Mirrors::copy(const ControlRow& row, const QString& objectName, const TextLabel::Look& look) const {
    auto* widget = new TextLabel(look);
    Control& control = form_.at(row);
    widget->setObjectName(objectName);
    widget->setHint(control.hint());
    follow(control, widget, [&control, widget](Property property) {
        applyCommon(control, widget, property);
        if (property == Property::Text) widget->setText(control.shownText());
    });
    return widget;
}

void Mirrors::bindButton(ConsoleButton* button, Control& control) const {
    button->setHint(control.tip());
    follow(control, button, [&control, button](Property property) {
        applyCommon(control, button, property);
        if (property == Property::Text) button->setCaption(control.shownText());
        if (property == Property::Checked) button->setSelected(control.checked());
        if (isColour(property)) button->setColours(shown(control.backColour()), shown(control.foreColour()));
    });
    QObject::connect(button, &QAbstractButton::clicked, button,
                     [&events = events_, &control] { events.click(control); });
}

ConsoleButton* Mirrors::button(const ControlRow& row, int index, const ConsoleButton::Look& look) const {
    auto* widget = new ConsoleButton(look);
    bindButton(widget, begin(widget, row, index));
    return widget;
}

CardButton* Mirrors::cardButton(int index) const {
    const ConsoleButton::Look flat{
        .pixels = 12, .ground = theme::Role::ButtonHover, .text = theme::Role::Muted, .flat = true, .firesCard = true};
    auto* widget = new CardButton(button(controls.cmdCARDBOX, index, flat));
    bindButton(widget, begin(widget, controls.cmbCARD, index));
    return widget;
}

QLineEdit* Mirrors::textBox(const ControlRow& row, int index) const {
    auto* widget = new QLineEdit;
    Control& control = begin(widget, row, index);
    follow(control, widget, [&control, widget](Property property) {
        applyCommon(control, widget, property);
        if (property == Property::Enabled) {
            // A text that may not be changed can still be read and copied.
            widget->setEnabled(true);
            widget->setReadOnly(!control.enabled());
        }
        if (property == Property::Text && widget->text() != control.text()) {
            const QSignalBlocker quiet(widget);
            widget->setText(control.text());
        }
        if (isColour(property) || property == Property::Enabled)
            widget->setPalette(theme::ownColours(control.backColour(), control.foreColour(), !control.enabled()));
    });
    follow(control, widget, [&control, widget](Property property) {
        if (property != Property::State) return;
        const bool wrong = !control.state().isEmpty();
        const QString words = wrong ? QString(control.hint() + u'\n' + control.state()) : control.hint();
        // A sign is a button of its own: most boxes never need one.
        if (wrong && widget->actions().isEmpty()) widget->addAction(QIcon(), QLineEdit::TrailingPosition);
        for (QAction* sign : widget->actions()) {
            if (wrong) sign->setIcon(theme::warningSign());
            sign->setVisible(wrong);
            sign->setText(words);
            sign->setToolTip(words);
        }
        widget->setToolTip(words);
        widget->setAccessibleDescription(control.state());
        widget->setProperty("wrong", wrong);
        widget->update();
    });
    QObject::connect(widget, &QLineEdit::textChanged, &control, &Control::setText);
    QObject::connect(widget, &QLineEdit::returnPressed, widget,
                     [&events = events_, &control] { events.enter(control); });
    return widget;
}

namespace {

template <class Button>
Button* bindCheckable(Button* widget, Control& control) {
    follow(control, widget, [&control, widget](Property property) {
        applyCommon(control, widget, property);
        const QSignalBlocker quiet(widget);
        if (property == Property::Text) widget->setText(control.shownText());
        if (property == Property::Checked) widget->setChecked(control.checked());
        if (!isColour(property)) return;
        widget->setPalette(theme::ownColours(control.backColour(), control.foreColour()));
        widget->setAutoFillBackground(control.backColour().has_value());
    });
    QObject::connect(widget, &QAbstractButton::toggled, &control, &Control::setChecked);
    return widget;
}

}  // namespace

QCheckBox* Mirrors::checkBox(const ControlRow& row) const {
    auto* widget = new QCheckBox;
    return bindCheckable(widget, begin(widget, row, -1));
}

QRadioButton* Mirrors::optionButton(const ControlRow& row, int index) const {
    auto* widget = new QRadioButton;
    return bindCheckable(widget, begin(widget, row, index));
}

namespace {

// A list that changes only while it is open: closed, neither the wheel nor a stray key turns it. After a choice the
// keyboard is the form's again.
class ListBox : public QComboBox {
 public:
    int changedTo = -1;  // the position that a choice under way has changed it to

    void hidePopup() override {
        QComboBox::hidePopup();
        window()->setFocus();
    }

 protected:
    void wheelEvent(QWheelEvent* event) override { event->ignore(); }
    void keyPressEvent(QKeyEvent* event) override {
        switch (event->key()) {
            case Qt::Key_Up:
            case Qt::Key_Down:
            case Qt::Key_PageUp:
            case Qt::Key_PageDown:
                return showPopup();
            case Qt::Key_Space:
            case Qt::Key_Return:
            case Qt::Key_Enter:
                if (!isEditable()) return showPopup();
                break;
            default:
                break;
        }
        // Letters would choose what they begin.
        if (isEditable()) QComboBox::keyPressEvent(event);
    }
};

}  // namespace

QComboBox* Mirrors::list(const ControlRow& row, int index, bool editable) const {
    auto* widget = new ListBox;
    widget->setFocusPolicy(Qt::StrongFocus);
    widget->setEditable(editable);
    widget->setInsertPolicy(QComboBox::NoInsert);
    widget->setMaxVisibleItems(12);
    Control& control = begin(widget, row, index);
    widget->view()->setAccessibleName(control.hint());
    if (editable) widget->lineEdit()->setAccessibleName(control.hint());
    follow(control, widget, [&control, widget, editable](Property property) {
        applyCommon(control, widget, property);
        const QSignalBlocker quiet(widget);
        if (property == Property::Items) {
            widget->clear();
            for (const Control::Item& item : control.items()) widget->addItem(item.text, item.data);
        }
        // What is being typed is there already; writing it again would move the cursor.
        if (editable && property == Property::Text && widget->currentText() == control.text()) return;
        if (property == Property::Text || property == Property::Items) {
            widget->setCurrentIndex(control.position());
            if (editable && widget->currentText() != control.text()) widget->setEditText(control.text());
        }
    });
    QObject::connect(widget, &QComboBox::currentIndexChanged, &control, [&control, widget](int position) {
        if (position < 0) return;
        control.setPosition(position);
        widget->changedTo = widget->currentIndex();  // a choice that is refused has gone back
    });
    // Choosing what is chosen already is a click, though no change.
    QObject::connect(widget, &QComboBox::activated, &control, [&events = events_, &control, widget](int position) {
        if (std::exchange(widget->changedTo, -1) != position) events.click(control);
    });
    if (editable) QObject::connect(widget, &QComboBox::editTextChanged, &control, &Control::setText);
    return widget;
}

void Mirrors::showColoursAnew() const {
    for (Control* control : form_.all()) {
        for (const Property property : {Property::BackColour, Property::State})
            Q_EMIT control->changed(control, property);
    }
}

void Mirrors::panel(QWidget* widget, const ControlRow& row) const {
    Control& control = begin(widget, row, -1);
    follow(control, widget, [&control, widget](Property property) { applyCommon(control, widget, property); });
}

}  // namespace zelvor
