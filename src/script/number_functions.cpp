#include <bit>
#include <cmath>

#include "base/run_time_error.h"
#include "script/decimal.h"
#include "script/functions.h"
#include "script/operators.h"

namespace zelvor::script::functions {

namespace {

using Kind = Value::Kind;

bool isWhole(const Value& value) {
    return value.kind() == Kind::Integer || value.kind() == Kind::Boolean || value.isEmpty();
}

// The number rounded by `rounding`, of the type it had.
template <class Rounding>
Value rounded(const Arguments& args, Rounding rounding) {
    const double number = args.number(0);
    if (isWhole(args[0])) return wholeValue(static_cast<qint64>(number));
    if (args[0].kind() == Kind::Date) return checkedDate(rounding(number));
    return rounding(number);
}

// The bits of a whole number in `base`; whole numbers of 16 bits have no more digits than those.
Value digits(const Arguments& args, int base) {
    const auto number = static_cast<qint32>(args.whole(0));
    const bool narrow = isWhole(args[0]) && number >= INT16_MIN && number < 0;
    const quint32 bits = narrow ? static_cast<quint16>(number) : static_cast<quint32>(number);
    return QString::number(bits, base).toUpper();
}

}  // namespace

Value absolute(const Arguments& args) {
    const double number = std::abs(args.number(0));
    if (isWhole(args[0])) return wholeValue(static_cast<qint64>(number));
    return number;
}

Value arcTangent(const Arguments& args) {
    return std::atan(args.number(0));
}

Value cosine(const Arguments& args) {
    return std::cos(args.number(0));
}

Value exponential(const Arguments& args) {
    return finite(std::exp(args.number(0)));
}

Value fix(const Arguments& args) {
    return rounded(args, [](double number) { return std::trunc(number); });
}

Value hex(const Arguments& args) {
    return digits(args, 16);
}

Value integer(const Arguments& args) {
    return rounded(args, [](double number) { return std::floor(number); });
}

Value logarithm(const Arguments& args) {
    const double number = args.number(0);
    require(number > 0);
    return std::log(number);
}

Value oct(const Arguments& args) {
    return digits(args, 8);
}

Value rgb(const Arguments& args) {
    qint64 colour = 0;
    for (qsizetype i = 2; i >= 0; --i) {
        const qint64 part = args.whole(i);
        require(part >= 0);
        colour = colour * 256 + std::min<qint64>(part, 255);
    }
    return colour;
}

Value rnd(const Arguments& args) {
    Environment& environment = args.environment();
    const double number = args.has(0) ? args.number(0) : 1;
    if (number < 0) {
        // The same number for the same argument: its bits, mixed, as a fraction.
        auto bits = std::bit_cast<quint64>(number);
        bits = (bits ^ (bits >> 31)) * 0x9E3779B97F4A7C15U;
        environment.lastRandom = static_cast<double>(bits >> 11) * 0x1p-53;
    } else if (number > 0 || !environment.lastRandom) {
        environment.lastRandom = environment.random();
    }
    return *environment.lastRandom;
}

Value round(const Arguments& args) {
    constexpr qint64 kMostPlaces = 22;
    const qint64 places = args.whole(1, 0);
    require(places >= 0 && places <= kMostPlaces);
    return rounded(args,
                   [places](double number) { return roundedTo(number, static_cast<int>(places), Halves::ToEven); });
}

Value sign(const Arguments& args) {
    const double number = args.number(0);
    return (number > 0 ? 1 : 0) - (number < 0 ? 1 : 0);
}

Value sine(const Arguments& args) {
    return std::sin(args.number(0));
}

Value squareRoot(const Arguments& args) {
    const double number = args.number(0);
    require(number >= 0);
    return std::sqrt(number);
}

Value tangent(const Arguments& args) {
    return std::tan(args.number(0));
}

}  // namespace zelvor::script::functions
