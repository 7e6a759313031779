#pragma once

#include <utility>
#include <vector>

#include "base/value.h"

namespace zelvor {

// The rows of the last query (QUERY_RESULT): rows 1 to rowCount(), fields 0 to fieldCount() - 1. Row 0 and the field
// behind the last exist and are empty.
class QueryResult {
 public:
    QueryResult() = default;
    QueryResult(int rows, int fields) : rows_(rows), fields_(fields), cells_(static_cast<size_t>(rows) * fields) {}
    // cells: rows times fields of them, row after row.
    QueryResult(int rows, int fields, std::vector<Value> cells)
        : rows_(rows), fields_(fields), cells_(std::move(cells)) {}

    [[nodiscard]] int rowCount() const { return rows_; }
    [[nodiscard]] int fieldCount() const { return fields_; }

    // row: 1 to rowCount(), field: 0 to fieldCount() - 1; unchecked.
    [[nodiscard]] Value& cell(int row, int field) { return cells_[static_cast<size_t>(row - 1) * fields_ + field]; }

    // The cell within the table's bounds, null outside of them. The empty row 0 and last field read as Empty.
    [[nodiscard]] const Value* find(int row, int field) const {
        static const Value kEmpty;
        if (row < 0 || field < 0 || row > rows_ || field > fields_ || fields_ == 0) return nullptr;
        return row == 0 || field == fields_ ? &kEmpty : &cells_[static_cast<size_t>(row - 1) * fields_ + field];
    }

 private:
    int rows_ = 0;
    int fields_ = 0;
    std::vector<Value> cells_;
};

}  // namespace zelvor
