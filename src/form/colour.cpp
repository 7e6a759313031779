#include "form/colour.h"

#include <algorithm>
#include <array>

#include "base/number.h"
#include "base/run_time_error.h"
#include "plain/number.h"

namespace zelvor {

namespace {

struct NamedColour {
    QStringView name;
    Colour colour;
};

constexpr std::array kNamedColours{
    NamedColour{u"black", rgb(0, 0, 0)},      NamedColour{u"white", rgb(255, 255, 255)},
    NamedColour{u"red", rgb(255, 0, 0)},      NamedColour{u"green", rgb(0, 255, 0)},
    NamedColour{u"blue", rgb(0, 0, 255)},     NamedColour{u"yellow", rgb(255, 255, 0)},
    NamedColour{u"cyan", rgb(0, 255, 255)},   NamedColour{u"magenta", rgb(255, 0, 255)},
    NamedColour{u"orange", rgb(255, 165, 0)}, NamedColour{u"amber", rgb(185, 92, 0)},
    NamedColour{u"purple", rgb(128, 0, 128)}, NamedColour{u"pink", rgb(255, 192, 203)},
    NamedColour{u"brown", rgb(139, 69, 19)},  NamedColour{u"gray", rgb(128, 128, 128)},
    NamedColour{u"grey", rgb(128, 128, 128)}, NamedColour{u"silver", rgb(192, 192, 192)},
    NamedColour{u"navy", rgb(0, 0, 128)},     NamedColour{u"darkgreen", rgb(0, 100, 0)},
    NamedColour{u"darkred", rgb(139, 0, 0)},  NamedColour{u"gold", rgb(255, 215, 0)},
};

// A colour that the platform looks up in its theme: &H80000000 and the number of the part, or the same number signed.
bool isSystemColour(double number) {
    constexpr double kFirst = 0x80000000;
    constexpr double kLastPart = 0x1E;
    if (number < 0) number += 2 * kFirst;
    return number >= kFirst && number <= kFirst + kLastPart;
}

}  // namespace

std::optional<Colour> parseColour(QStringView text) {
    const QStringView trimmed = text.trimmed();
    if (trimmed.isEmpty()) return std::nullopt;
    const auto* named = std::ranges::find_if(kNamedColours, [&](const NamedColour& candidate) {
        return trimmed.compare(candidate.name, Qt::CaseInsensitive) == 0;
    });
    if (named != kNamedColours.end()) return named->colour;
    double number = 0;
    if (trimmed.startsWith(u"&H", Qt::CaseInsensitive)) {
        // Not by readNumber(): a colour of 16 bits, as &HFF00 or &HFF00&, is no negative number.
        bool ok = false;
        number = trimmed.mid(2, trimmed.size() - (trimmed.endsWith(u'&') ? 3 : 2)).toUInt(&ok, 16);
        if (!ok) throw RunTimeError(ErrorNumber::TypeMismatch, trimmed.toString());
    } else if (!readNumber(trimmed, number)) {
        throw RunTimeError(ErrorNumber::TypeMismatch, trimmed.toString());
    }
    number = plain::roundHalfEven(number);
    if (isSystemColour(number)) return std::nullopt;
    if (!(number >= 0 && number <= 0xFFFFFF)) throw RunTimeError(ErrorNumber::InvalidPropertyValue, trimmed.toString());
    return static_cast<Colour>(number);
}

}  // namespace zelvor
