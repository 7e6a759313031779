#pragma once

#include <QString>
#include <optional>

namespace zelvor {

// Game clocks as sources write them, in hundredths of a second: "9:27", "09:27:41", "59.3", "5". nullopt for anything
// else.
std::optional<int> clockHundredths(const QString& text);

// "9:27"; what is below a second is cut.
QString secondsText(int hundredths);

}  // namespace zelvor
