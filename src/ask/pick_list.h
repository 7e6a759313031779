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

    // Reads the field's rows. An error (a field that does not exist, a query that fails or lacks a column) is reported
    // by the trap and leaves the list empty. A row whose key is no whole number is left out, and the first one told.
    PickList(ShowState& state, Database& database, ErrorTrap& trap, const Asker& asker);

    [[nodiscard]] const QString& title() const { return title_; }
    [[nodiscard]] const std::vector<Row>& rows() const { return rows_; }
    // What is wrong with the first row that was left out; empty when none was.
    [[nodiscard]] const QString& fault() const { return fault_; }
    // The query was given up, and with it the card: there is nothing to show.
    [[nodiscard]] bool isGivenUp() const { return isGivenUp_; }
    // The row that an operator means by what he has typed: the first with that number, else the first that begins with
    // the text, has a word that does, or does but for its accents, all in either case; else -1.
    [[nodiscard]] int find(QStringView typed) const;

    // The row's key becomes the answer. row: 0 to the number of rows - 1.
    void choose(int row);
    void cancel();

 private:
    void readRows(Database& database, const Asker& asker);
    void close();

    ShowState& state_;
    QString title_;
    std::vector<Row> rows_;
    QString fault_;
    bool isGivenUp_ = false;
    qint16 openBefore_;
};

}  // namespace zelvor
