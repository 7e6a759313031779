#include "engine/name_index.h"

#include <algorithm>
#include <utility>

namespace zelvor {

void NameIndex::insert(quint32 hash, int slot) {
    constexpr size_t kFewestCells = 32;
    if (static_cast<size_t>(used_ + 1) * 3 > cells_.size() * 2) {
        const std::vector<Cell> old = std::exchange(cells_, std::vector<Cell>(std::max(kFewestCells, cells_.size() * 2)));
        for (const Cell& cell : old) {
            if (cell.slot != kNone) place(cell);
        }
    }
    place({hash, slot});
    ++used_;
}

void NameIndex::place(Cell cell) {
    size_t at = home(cell.hash);
    while (cells_[at].slot != kNone) at = next(at);
    cells_[at] = cell;
}

void NameIndex::remove(quint32 hash, int slot) {
    size_t gap = home(hash);
    while (cells_[gap].slot != slot) gap = next(gap);
    // What stands behind moves up as far as its own place allows, so that no search ends at the gap.
    const size_t mask = cells_.size() - 1;
    for (size_t at = next(gap); cells_[at].slot != kNone; at = next(at)) {
        const size_t distanceFromHome = (at - home(cells_[at].hash)) & mask;
        if (distanceFromHome < ((at - gap) & mask)) continue;
        cells_[gap] = cells_[at];
        gap = at;
    }
    cells_[gap] = {};
    --used_;
}

void NameIndex::clear() {
    if (used_ == 0) return;
    cells_.assign(cells_.size(), {});
    used_ = 0;
}

}  // namespace zelvor
