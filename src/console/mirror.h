#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QRadioButton>

#include "console/card_button.h"
#include "console/console_button.h"
#include "console/text_label.h"
#include "console_rules/form_events.h"
#include "form/form_model.h"

namespace zelvor {

// Makes the widgets of the form's controls and keeps the two alike: a change of the control shows, what the operator
// does reaches the control and the form's events. A widget's objectName is its control's name, its property "index"
// the number in the control array. The caller's layout takes the widgets over.
class Mirrors {
 public:
    Mirrors(FormModel& form, FormEvents& events) : form_(form), events_(events) {}

    [[nodiscard]] TextLabel* label(const ControlRow& row, int index = -1, const TextLabel::Look& look = {}) const;
    // A second view of a label's text, in the look's colours.
    [[nodiscard]] TextLabel* copy(const ControlRow& row, const QString& objectName, const TextLabel::Look& look) const;
    [[nodiscard]] ConsoleButton* button(const ControlRow& row, int index = -1,
                                        const ConsoleButton::Look& look = {}) const;
    // With its "L" button inside.
    [[nodiscard]] CardButton* cardButton(int index) const;
    [[nodiscard]] QLineEdit* textBox(const ControlRow& row, int index = -1) const;
    [[nodiscard]] QCheckBox* checkBox(const ControlRow& row) const;
    [[nodiscard]] QRadioButton* optionButton(const ControlRow& row, int index) const;
    // editable: the operator may type a text that is not in the list.
    [[nodiscard]] QComboBox* list(const ControlRow& row, int index = -1, bool editable = false) const;
    // A widget of the panel's own making; its visibility follows the control.
    void panel(QWidget* widget, const ControlRow& row) const;

    // After another theme was applied: what widgets take from it beside their palette.
    void showColoursAnew() const;

    [[nodiscard]] FormModel& form() const { return form_; }

 private:
    Control& begin(QWidget* widget, const ControlRow& row, int index) const;
    void bindButton(ConsoleButton* button, Control& control) const;

    FormModel& form_;
    FormEvents& events_;
};

}  // namespace zelvor
