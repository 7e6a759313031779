#pragma once

#include <QObject>
#include <QString>
#include <optional>

#include "form/control_row.h"

namespace zelvor {

// One label, text box or button of the main form as scripts and rules see it, without a widget. The window mirrors
// it; a change is signalled once, and writing the value it has is no change.
class Control : public QObject {
    Q_OBJECT

 public:
    using Kind = ControlKind;
    using Role = ControlRole;
    enum class Property { Text, Tag, BackColour, ForeColour, Visible, Enabled, Checked, State, Role, Items };

    // row: stays while the control lives. index: the element's number in its control array, -1 for a control of its
    // own.
    Control(const ControlRow& row, int index);

    // Whether it is the control, or an element of the array, of that row.
    [[nodiscard]] bool is(const ControlRow& row) const { return row_.name == row.name; }
    [[nodiscard]] Kind kind() const { return row_.kind; }
    [[nodiscard]] const QString& name() const { return name_; }
    [[nodiscard]] int index() const { return index_; }
    // "lblTime", "cmbCARD(3)": as messages and the terminal name it.
    [[nodiscard]] QString displayName() const;

    // What it is for, in the operator's words: its tool tip and, before its text, its name for screen readers.
    [[nodiscard]] QString hint() const;
    // Empty for a control without a key; of an array with one key for all, that.
    [[nodiscard]] QString key() const;
    // The hint with its key: "Opens the main menu (Ctrl+M)".
    [[nodiscard]] QString tip() const;

    // The caption of a label or button, the text of a text box or of a list's selected item.
    [[nodiscard]] const QString& text() const { return text_; }
    // The text as the operator sees it: the row's own in his language, any other as it is.
    [[nodiscard]] QString shownText() const;
    [[nodiscard]] const QString& tag() const { return tag_; }
    // nullopt: the theme's own colour.
    [[nodiscard]] std::optional<Colour> backColour() const { return backColour_; }
    [[nodiscard]] std::optional<Colour> foreColour() const { return foreColour_; }
    [[nodiscard]] bool visible() const { return visible_; }
    [[nodiscard]] bool enabled() const { return enabled_; }
    [[nodiscard]] bool checked() const { return checked_; }
    // A word for what is shown besides the text: "ON" or "OFF" of a card button.
    [[nodiscard]] const QString& state() const { return state_; }
    [[nodiscard]] Role role() const { return role_; }

    // On a list the item of that text becomes the selected one; none when there is no such item.
    void setText(const QString& text);
    void setTag(const QString& tag);
    void setBackColour(std::optional<Colour> colour);
    void setForeColour(std::optional<Colour> colour);
    void setVisible(bool visible);
    void setEnabled(bool enabled);
    void setChecked(bool checked);
    void setState(const QString& state);
    void setRole(Role role);

    // Lists: items with the whole number attached to each, and the selected position, -1 when none is.
    struct Item {
        QString text;
        int data = 0;
        bool operator==(const Item&) const = default;
    };
    [[nodiscard]] const QList<Item>& items() const { return items_; }
    [[nodiscard]] int position() const { return position_; }
    // Replaces the items; nothing is selected afterwards.
    void setItems(const QList<Item>& items);
    // Selects an item, its text becomes the control's. A position outside -1 .. count - 1 throws 380.
    void setPosition(int position);

 Q_SIGNALS:
    void changed(zelvor::Control* control, zelvor::Control::Property property);

 private:
    template <class T>
    void change(T& member, const T& value, Property property);

    const ControlRow& row_;
    QString name_;
    int index_;
    QString text_;
    QString tag_;
    QString state_;
    std::optional<Colour> backColour_;
    std::optional<Colour> foreColour_;
    QList<Item> items_;
    int position_ = -1;
    bool visible_ = true;
    bool enabled_ = true;
    bool checked_ = false;
    Role role_ = Role::Plain;
};

}  // namespace zelvor
