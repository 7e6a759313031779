#pragma once

#include <QStringList>
#include <atomic>
#include <memory>
#include <optional>
#include <vector>

#include "base/value.h"
#include "data/cell_value.h"
#include "data/odbc_handle.h"

namespace zelvor::odbc {

// All rows of a query, row after row.
struct Rows {
    QStringList columns;
    std::vector<Value> cells;

    [[nodiscard]] int rowCount() const {
        return columns.isEmpty() ? 0 : static_cast<int>(cells.size() / static_cast<size_t>(columns.size()));
    }
};

// One statement on an open connection. Its columns are bound to buffers of a modest size; a longer cell is asked for
// again by itself. (Blocks of several rows would save little, and drivers lose rows when a cell of a block is read
// again.)
class Statement {
 public:
    // secondsAllowed: the driver's own query time-out, where it has one.
    Statement(SQLHANDLE connection, int secondsAllowed);

    // False when the driver refused; diagnostics(handle()) has its words.
    bool execute(const QByteArray& sql);
    // 0 for a statement that gives no rows, also an UPDATE ... RETURNING that met none; nullopt when the driver failed.
    [[nodiscard]] std::optional<int> columnCount() const;
    // Reads every row, until `stop` is set. False when the driver failed on the way.
    bool readRows(CharacterSet& characterSet, Rows& rows, const std::atomic<bool>& stop);

    [[nodiscard]] const Handle& handle() const { return handle_; }

 private:
    // Its address is known to the driver: it stays where it is.
    struct Column {
        ColumnKind kind = ColumnKind::Text;
        SQLSMALLINT cType = SQL_C_CHAR;
        std::unique_ptr<char[]> buffer;
        SQLLEN capacity = 0;
        SQLLEN length = 0;

        [[nodiscard]] bool isCut() const;
    };

    bool describeColumn(SQLUSMALLINT number, CharacterSet& characterSet, Rows& rows);
    bool readCell(SQLUSMALLINT number, Column& column, CharacterSet& characterSet, Rows& rows);
    bool readLongCell(SQLUSMALLINT number, const Column& column, QByteArray& bytes);

    Handle handle_;
    bool metNone_ = false;
    std::vector<Column> columns_;
};

}  // namespace zelvor::odbc
