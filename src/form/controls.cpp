#include "form/controls.h"

#include <array>
#include <bit>

namespace zelvor {

std::span<const ControlRow> allControls() {
    static_assert(sizeof(ControlTable) % sizeof(ControlRow) == 0);
    using Rows = std::array<ControlRow, sizeof(ControlTable) / sizeof(ControlRow)>;
    static const Rows kRows = std::bit_cast<Rows>(controls);
    return kRows;
}

}  // namespace zelvor
