#pragma once

#include <QString>
#include <optional>

namespace zelvor::rehearsal {

// Where a line works: "1" or "1-20", taken apart.
struct Place {
    int channel = 0;
    std::optional<int> layer;
};

// Nothing when TOKEN does not begin with a channel number. What is no layer number behind it counts as none.
std::optional<Place> parsePlace(const QString& token);

}  // namespace zelvor::rehearsal
