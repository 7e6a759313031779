#pragma once

#include <QString>
#include <vector>

#include "base/error_trap.h"
#include "engine/ports.h"
#include "engine/show_state.h"

namespace zelvor {

// The list of the ask field in the ask state, from when it opens until it is answered. Whoever shows it calls
// choose() or cancel() once.
class PickList {
 public:
    struct Row {
        QString text;
        qint32 key = 0;
    };

    // Reads the field's rows. An error (a field that does not exist, a query that fails or lacks a column, a key that
    // is no whole number) is reported by the trap and leaves the list empty.
    PickList(ShowState& state, Database& database, ErrorTrap& trap, const Asker& asker);

    [[nodiscard]] const QString& title() const { return title_; }
    [[nodiscard]] const std::vector<Row>& rows() const { return rows_; }
    // The row that an operator means by what he has typed: the first with that number, else the first that begins with
    // the text, has a word that does, or does but for its accents, all in either case; else -1.
    [[nodiscard]] int find(QStringView typed) const;

    // The row's key becomes the answer. row: 0 to the number of rows - 1.
    void choose(int row);
    void cancel();

 private:
    void readRows(Database& database);
    void close();

    ShowState& state_;
    QString title_;
    std::vector<Row> rows_;
    qint16 openBefore_;
};

}  // namespace zelvor
