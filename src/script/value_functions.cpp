#include <cmath>
#include <limits>

#include "base/number.h"
#include "base/run_time_error.h"
#include "script/date_text.h"
#include "script/decimal.h"
#include "script/functions.h"
#include "script/grouped_number.h"
#include "script/operators.h"
#include "script/parser.h"

using namespace Qt::StringLiterals;

namespace zelvor::script::functions {

namespace {

using Kind = Value::Kind;

bool is16Bits(qint64 number) {
    return number >= std::numeric_limits<qint16>::min() && number <= std::numeric_limits<qint16>::max();
}

// The only dimension of an array is its first.
const std::vector<Value>& dimension(const Arguments& args) {
    if (args.whole(1, 1) != 1) throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
    return args.array(0);
}

}  // namespace

Value array(const Arguments& args) {
    std::vector<Value> elements;
    elements.reserve(static_cast<size_t>(args.count()));
    for (qsizetype i = 0; i < args.count(); ++i) elements.push_back(args[i]);
    return std::make_shared<const std::vector<Value>>(std::move(elements));
}

Value cBool(const Arguments& args) {
    return truthOf(args[0]);
}

Value cByte(const Arguments& args) {
    const qint16 number = wholeNumber16(args.number(0));
    if (number < 0 || number > std::numeric_limits<quint8>::max()) throw RunTimeError(ErrorNumber::Overflow);
    return int{number};
}

Value cCur(const Arguments& args) {
    constexpr double kLargest = 922337203685477.5807;
    const double number = args.number(0);
    if (std::abs(number) > kLargest) throw RunTimeError(ErrorNumber::Overflow);
    return roundedTo(number, 4, Halves::ToEven);
}

Value cDate(const Arguments& args) {
    return args.date(0);
}

Value cDbl(const Arguments& args) {
    return args.number(0);
}

Value cInt(const Arguments& args) {
    return int{wholeNumber16(args.number(0))};
}

Value cLng(const Arguments& args) {
    return int{wholeNumber32(args.number(0))};
}

Value cSng(const Arguments& args) {
    const double number = args.number(0);
    if (std::abs(number) > std::numeric_limits<float>::max()) throw RunTimeError(ErrorNumber::Overflow);
    // Seven digits are what a Single holds for certain, and what is shown of it.
    return QString::number(static_cast<double>(static_cast<float>(number)), 'g', 7).toDouble();
}

Value cStr(const Arguments& args) {
    return args.text(0).string();
}

Value eval(const Arguments& args) {
    if (!args[0].isText()) return args[0];
    return evaluateText(args.text(0), args.environment());
}

Value iif(const Arguments& args) {
    return !args[0].isNull() && truthOf(args[0]) ? args[1] : args[2];
}

Value isArray(const Arguments& args) {
    return args[0].kind() == Kind::Array;
}

Value isDate(const Arguments& args) {
    if (const auto* text = args[0].as<QString>()) return readDate(*text, &args.environment().clock).has_value();
    return args[0].kind() == Kind::Date;
}

Value isEmpty(const Arguments& args) {
    return args[0].isEmpty();
}

Value isNull(const Arguments& args) {
    return args[0].isNull();
}

Value isNumeric(const Arguments& args) {
    switch (args[0].kind()) {
        case Kind::Empty:
        case Kind::Boolean:
        case Kind::Integer:
        case Kind::Double:
            return true;
        case Kind::Text: {
            double number = 0;
            return readsAsNumber(*args[0].as<QString>(), number);
        }
        default:
            return false;
    }
}

// There are no objects.
Value isObject(const Arguments&) {
    return false;
}

Value lBound(const Arguments& args) {
    dimension(args);
    return 0;
}

Value typeName(const Arguments& args) {
    switch (args[0].kind()) {
        case Kind::Empty:
            return u"Empty"_s;
        case Kind::Null:
            return u"Null"_s;
        case Kind::Boolean:
            return u"Boolean"_s;
        case Kind::Integer:
            return is16Bits(*args[0].as<qint64>()) ? u"Integer"_s : u"Long"_s;
        case Kind::Double:
            return u"Double"_s;
        case Kind::Date:
            return u"Date"_s;
        case Kind::Text:
            return u"String"_s;
        case Kind::Array:
            return u"Variant()"_s;
    }
    Q_UNREACHABLE();
}

Value uBound(const Arguments& args) {
    return static_cast<qint64>(dimension(args).size()) - 1;
}

Value varType(const Arguments& args) {
    switch (args[0].kind()) {
        case Kind::Empty:
            return 0;
        case Kind::Null:
            return 1;
        case Kind::Integer:
            return is16Bits(*args[0].as<qint64>()) ? 2 : 3;
        case Kind::Double:
            return 5;
        case Kind::Date:
            return 7;
        case Kind::Text:
            return 8;
        case Kind::Boolean:
            return 11;
        case Kind::Array:
            return 8192 + 12;  // array of anything
    }
    Q_UNREACHABLE();
}

}  // namespace zelvor::script::functions
