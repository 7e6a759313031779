#pragma once

#include <QObject>
#include <QTimer>

#include "engine/card_engine.h"

namespace zelvor {

// The operator's last choices of period, effect speeds and starting fives, kept in MODULES\SELECTIONS.TXT.
class Selections : public QObject {
    Q_OBJECT

 public:
    // All must outlive this object. From LoadSelections on, every change of one of the boxes is saved, those of one
    // turn of the event loop together; before it the boxes are being filled, which must not overwrite what was saved.
    explicit Selections(CardEngine& engine);

    // Writes the file, whole or not at all. A failure is reported once, and again after a save that succeeded.
    void SaveSelections();
    // Reads the file into the boxes and their variables, line by line; nothing without a file. A line that is missing
    // or no position of its list ends the reading with one message: what was read stays.
    void LoadSelections();

 private:
    [[nodiscard]] QString path() const;
    void read(const QStringList& lines, int& lineNo);

    Program& program_;
    ShowState& state_;
    FormModel& form_;
    QTimer due_;  // runs while a change is to be saved
    bool saving_ = false;
    bool told_ = false;  // that the file cannot be written
};

}  // namespace zelvor
