#include "expr/scanner.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace zelvor::expr {

namespace {

// Units by themselves leave the number as it is.
constexpr std::array<std::string_view, 15> kUnits{"s", "Hz", "m", "g", "rad", "Rad", "RAD", "S",
                                                  "V", "A",  "W", "F", "bar", "Pa",  "Nm"};
constexpr std::array<std::string_view, 2> kOhm{"Ohm", "ohm"};

struct Prefix {
    std::string_view symbol;
    double factor;
    // Small factors divide, which keeps 5 mV the number that 0.005 reads as.
    double divisor;
};

// The micro sign and the Greek letter mu look the same.
constexpr std::array<Prefix, 11> kPrefixes{{{"p", 1, 1e12},
                                            {"n", 1, 1e9},
                                            {"u", 1, 1e6},
                                            {"\u00B5", 1, 1e6},
                                            {"\u03BC", 1, 1e6},
                                            {"m", 1, 1e3},
                                            {"c", 1, 1e2},
                                            {"k", 1e3, 1},
                                            {"M", 1e6, 1},
                                            {"G", 1e9, 1},
                                            {"T", 1e12, 1}}};

bool isUnit(std::string_view name) {
    return std::find(kUnits.begin(), kUnits.end(), name) != kUnits.end() ||
           std::find(kOhm.begin(), kOhm.end(), name) != kOhm.end();
}

// True with the value scaled when the name is a unit, with or without a prefix.
bool applyUnit(std::string_view name, double& value) {
    if (isUnit(name)) return true;
    for (const Prefix& prefix : kPrefixes) {
        if (!name.starts_with(prefix.symbol) || !isUnit(name.substr(prefix.symbol.size()))) continue;
        value = value * prefix.factor / prefix.divisor;
        return true;
    }
    return false;
}

// The letters that a number multiplies.
bool isMultiplied(char c) {
    return (c >= 'x' && c <= 'z') || (c >= 'X' && c <= 'Z');
}

std::size_t digitsLength(std::string_view text) {
    return static_cast<std::size_t>(std::find_if_not(text.begin(), text.end(), isDigit) - text.begin());
}

// True when a number beyond the range of a double is so by its size, not by its smallness.
bool isHuge(std::string_view number) {
    const std::size_t mark = number.find_first_of("eE");
    int exponent = 0;
    if (mark != std::string_view::npos) {
        std::string_view text = number.substr(mark + 1);
        const bool negative = text.starts_with('-');
        if (negative || text.starts_with('+')) text.remove_prefix(1);
        if (std::from_chars(text.data(), text.data() + text.size(), exponent).ec != std::errc()) return !negative;
        if (negative) exponent = -exponent;
    }
    const std::string_view mantissa = number.substr(0, mark);
    const std::size_t figure = mantissa.find_first_of("123456789");
    const std::size_t point = std::min(mantissa.find(kDecimalSeparator), mantissa.size());
    return static_cast<double>(point) - static_cast<double>(figure) + exponent > 0;
}

// A plain number. Never fails on an empty text: its first character has been looked at.
ScannedNumber scanPlain(std::string_view rest) {
    ScannedNumber number;
    const char* const first = rest.data();
    const auto [end, error] = std::from_chars(first, first + rest.size(), number.value);
    number.length = static_cast<std::size_t>(end - first);
    if (error == std::errc::result_out_of_range) {
        number.value = 0;
        if (isHuge(rest.substr(0, number.length))) number.error = ErrorCode::Syntax;
    } else if (number.length < rest.size() && rest[number.length] == kDecimalSeparator) {
        const auto* const last = std::find_if_not(first + number.length, first + rest.size(),
                                                  [](char c) { return isDigit(c) || c == kDecimalSeparator; });
        number.length = static_cast<std::size_t>(last - first);
        number.error = ErrorCode::Syntax;
    }
    return number;
}

// A part of a group of degrees: digits with an optional fraction, no exponent. Its length is 0 when there is none.
ScannedNumber scanPart(std::string_view rest) {
    ScannedNumber part;
    const char* const first = rest.data();
    if (rest.empty() || !isDigit(rest.front())) return part;
    const auto result = std::from_chars(first, first + rest.size(), part.value, std::chars_format::fixed);
    if (result.ec == std::errc()) part.length = static_cast<std::size_t>(result.ptr - first);
    return part;
}

bool hasFraction(const ScannedNumber& part, std::string_view rest) {
    return rest.substr(0, part.length).find(kDecimalSeparator) != std::string_view::npos;
}

// Minutes and seconds behind the degrees: whole numbers below 60, the last of them with a fraction or without.
ScannedNumber scanDegrees(ScannedNumber group, std::string_view rest) {
    group.degrees = true;
    bool fraction = hasFraction(group, rest);
    ++group.length;
    double divisor = 60;
    for (const char marker : {'m', 's'}) {
        const std::string_view left = rest.substr(group.length);
        const ScannedNumber part = scanPart(left);
        if (part.length == 0) break;
        const bool marked = part.length < left.size() && left[part.length] == marker;
        if (marked) {
            if (fraction || part.value >= 60) group.error = ErrorCode::WrongDms;
            fraction = hasFraction(part, left);
            group.value += part.value / divisor;
            group.length += part.length + 1;
        }
        divisor *= 60;
    }
    const std::string_view left = rest.substr(group.length);
    if (!left.empty() && (startsNumber(left) || startsName(left.front()))) group.error = ErrorCode::WrongDms;
    return group;
}

}  // namespace

bool isBlank(char c) {
    return c == ' ' || c == '\t' || c == '\n' || c == '\r';
}

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

bool startsName(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_' || static_cast<unsigned char>(c) >= 0x80;
}

bool startsNumber(std::string_view rest) {
    if (rest.empty()) return false;
    return isDigit(rest[0]) || (rest[0] == kDecimalSeparator && rest.size() > 1 && isDigit(rest[1]));
}

std::string_view scanName(std::string_view rest) {
    const auto* const end =
        std::find_if_not(rest.begin(), rest.end(), [](char c) { return startsName(c) || isDigit(c); });
    return rest.substr(0, static_cast<std::size_t>(end - rest.begin()));
}

ScannedNumber scanNumber(std::string_view rest, NumberStyle style) {
    const std::size_t digits = digitsLength(rest);
    // Most numbers are short whole ones.
    ScannedNumber number;
    if (digits > 0 && digits < 9 &&
        (digits == rest.size() || (rest[digits] != kDecimalSeparator && (rest[digits] | 0x20) != 'e'))) {
        int whole = 0;
        for (const char c : rest.substr(0, digits)) whole = whole * 10 + (c - '0');
        number.value = whole;
        number.length = digits;
    } else {
        number = scanPlain(rest);
    }
    const std::string_view left = rest.substr(number.length);
    if (number.error != ErrorCode::None || left.empty() || !startsName(left.front()) || isMultiplied(left.front())) {
        return number;
    }
    if (style.degrees) {
        if (left.front() == 'd') return scanDegrees(number, rest);
        if (!style.units && (left.front() == 'm' || left.front() == 's')) {
            number.error = ErrorCode::WrongDms;
            return number;
        }
    }
    if (style.units) {
        const std::string_view name = scanName(left);
        if (applyUnit(name, number.value)) {
            number.length += name.size();
        } else {
            number.error = ErrorCode::UnknownConstant;
        }
    }
    return number;
}

}  // namespace zelvor::expr
