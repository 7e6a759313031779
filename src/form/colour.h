#pragma once

#include <QString>
#include <QStringView>
#include <optional>

namespace zelvor {

// A colour as the platform stores it: 0xBBGGRR.
using Colour = quint32;

constexpr Colour rgb(int red, int green, int blue) {
    return static_cast<Colour>(red) | static_cast<Colour>(green) << 8 | static_cast<Colour>(blue) << 16;
}

namespace colours {
constexpr Colour kWhite = rgb(255, 255, 255);
constexpr Colour kGreen = rgb(0, 255, 0);
constexpr Colour kRed = rgb(255, 0, 0);
constexpr Colour kUsedProposal = rgb(200, 0, 0);
constexpr Colour kOpenProposal = rgb(185, 92, 0);
constexpr Colour kAcceptedProposal = rgb(0, 70, 35);
constexpr Colour kScreenModeOn = rgb(25, 255, 25);
constexpr Colour kScreenModeOff = rgb(255, 25, 25);
}  // namespace colours

// A colour number (decimal or &H) or a common English colour name in any case; nullopt, the theme's own colour, for an
// empty text and for a system colour such as &H8000000F. Throws 13 Type mismatch for anything else and 380 Invalid
// property value for a number that is no colour.
std::optional<Colour> parseColour(QStringView text);

}  // namespace zelvor
