#pragma once

#include <QDialog>

#include "ask/pick_list.h"
#include "base/program.h"

namespace zelvor {

// The pick-list dialog (frmASK): a line that says how many rows there are and what to press, the list, and a Cancel
// button below it. It ends, cancelled, when the program is closing.
class AskForm : public QDialog {
    Q_OBJECT

 public:
    // list: outlives this form. attended: whether the form may take the keyboard.
    AskForm(PickList& list, bool attended, Program& program, QWidget* parent);

    // Shows the form until it is closed and only then answers the list: a timed card that runs in the same moment
    // would overwrite an answer given earlier.
    void answer();
    // The form ends with that row of the list.
    void choose(int row);

 private:
    PickList& list_;
    bool attended_;
    int chosenRow_ = -1;
};

// Shows an AskForm, centred on the console, for each pick list.
class AskFormDialog : public AskDialog {
 public:
    AskFormDialog(ShowState& state, Database& database, Program& program)
        : state_(state), database_(database), program_(program) {}

    // The console's window; without one the list is centred on the screen.
    void setWindow(QWidget& window) { window_ = &window; }

    void show(const Asker& asker) override;

 private:
    ShowState& state_;
    Database& database_;
    Program& program_;
    QWidget* window_ = nullptr;
};

}  // namespace zelvor
