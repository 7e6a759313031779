#pragma once

#include <QDialog>

#include "form/form_model.h"

namespace zelvor {

// All keys of the console on one sheet, beside what they do: made from the table of controls. F12 and Escape close it.
class KeySheet : public QDialog {
    Q_OBJECT

 public:
    KeySheet(const FormModel& form, QWidget& console);

    struct Line {
        QString key;
        QString deed;
    };
    // An array whose hint counts its elements is one line, from the first key to the last.
    [[nodiscard]] static std::vector<Line> lines(const FormModel& form);

 protected:
    void keyPressEvent(QKeyEvent* event) override;
};

}  // namespace zelvor
