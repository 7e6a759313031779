#pragma once

#include <QtGlobal>
#include <vector>

namespace zelvor {

// Finds a name's slot by its hash: open addressing with the hashes beside the slots, so that a look-up touches one
// line of memory before the name itself.
class NameIndex {
 public:
    static constexpr int kNone = -1;

    // The slot with that hash for which isIt(slot) holds, kNone when there is none.
    template <class IsIt>
    [[nodiscard]] int find(quint32 hash, IsIt&& isIt) const {
        if (cells_.empty()) return kNone;
        for (size_t at = home(hash); cells_[at].slot != kNone; at = next(at)) {
            if (cells_[at].hash == hash && isIt(cells_[at].slot)) return cells_[at].slot;
        }
        return kNone;
    }

    // The slot must not be in the index yet.
    void insert(quint32 hash, int slot);
    // The slot must be in the index.
    void remove(quint32 hash, int slot);
    void clear();

    [[nodiscard]] qsizetype size() const { return used_; }

 private:
    struct Cell {
        quint32 hash = 0;
        int slot = kNone;
    };

    [[nodiscard]] size_t home(quint32 hash) const { return hash & (cells_.size() - 1); }
    [[nodiscard]] size_t next(size_t at) const { return (at + 1) & (cells_.size() - 1); }
    void place(Cell cell);

    std::vector<Cell> cells_;  // a power of two of them, at most two thirds in use
    qsizetype used_ = 0;
};

}  // namespace zelvor
