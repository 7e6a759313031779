#pragma once

#include <optional>

#include "base/program.h"
#include "engine/ports.h"
#include "engine/show_state.h"
#include "general_rules/general_grid.h"

namespace zelvor {

// The operator's own variables: kept in the pack's infodata.dat, edited as a grid, copied into the variable table.
// Failures are reported to the operator here.
class GeneralVariables {
 public:
    GeneralVariables(ShowState& state, Program& program, Operator& operatorDesk);

    // Loads infodata.dat of the current pack. Without one the grid starts empty; a damaged one is reported with its
    // line, copied to infodata.dat.bad, and the rows before the damage are taken.
    void load();
    // Asks for name, title and help of a new row. False when none was added: the operator cancelled.
    bool addRow();
    // Takes rows away once the operator has agreed. Their variables keep the values they have.
    void removeRows(const QList<int>& rows);
    // Adds every line of infodata.txt as a row and saves; reports lines of more or fewer than four fields.
    void importText();
    // Writes infodata.dat, whole or not at all. One that is no longer as it was read is overwritten once the operator
    // has agreed. False when it was not written.
    bool save();
    // Copies the value of every row into the variable it names.
    void apply();

    GeneralGrid& grid() { return grid_; }

 private:
    [[nodiscard]] QString file(QStringView name) const;
    [[nodiscard]] bool mayReplaceFile();
    void keepDamaged(const QByteArray& bytes, const GridReading& reading);

    ShowState& state_;
    Program& program_;
    Operator& operator_;
    QString pack_;  // the one whose file was loaded: saving goes there, whatever cards do to @LANGUAGE meanwhile
    std::optional<QByteArray> onDisk_;  // infodata.dat as it was read or saved
    GeneralGrid grid_;
};

}  // namespace zelvor
