#pragma once

#include <QKeyEvent>
#include <QKeySequence>
#include <map>

#include "form/form_model.h"

class QWidget;

namespace zelvor {

// What a button of the mouse does to a control's widget; the right one is the "L" of a card.
void pressWidget(QWidget& widget, Qt::MouseButton mouse);

// The keys of the form's controls, as the table of controls gives them: a button is pressed, a text box, list or group
// of labels gets the keyboard, wherever its panel lies. Ctrl+Enter presses what has the keyboard, Ctrl+Shift+Enter is
// its right button, or the "L" of a card.
class FormKeys {
 public:
    // form: the window that holds the controls' widgets.
    FormKeys(QWidget& form, const FormModel& model);

    // The key with its modifiers, and the Latin letter of a Greek one in the same place of the keyboard.
    [[nodiscard]] static QKeySequence sequenceOf(const QKeyEvent& key);

    [[nodiscard]] bool has(const QKeySequence& key) const;
    // focus: what the key came to. False when no control has the key; a disabled control does nothing.
    bool press(const QKeySequence& key, QWidget* focus) const;
    // An arrow leads to the next element of an array, in its direction; Escape gives the keyboard back to the form.
    void moveFocus(const QKeyEvent& key, QWidget* focus) const;

 private:
    struct Place {
        QString name;
        int index;
        bool leadsTo;  // gets the keyboard, is not pressed
    };
    [[nodiscard]] QWidget* widgetOf(const Place& place) const;
    void lead(QWidget& widget) const;

    QWidget& form_;
    std::map<QKeySequence, Place> places_;
};

}  // namespace zelvor
