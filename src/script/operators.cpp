#include "script/operators.h"

#include <cmath>
#include <limits>
#include <optional>

#include "base/number.h"
#include "base/run_time_error.h"
#include "script/arguments.h"
#include "script/date_text.h"
#include "script/grouped_number.h"
#include "script/lexer.h"

using namespace Qt::StringLiterals;

namespace zelvor::script {

namespace {

using Kind = Value::Kind;

constexpr qsizetype kQuotedInErrors = 40;

bool anyNull(const Value& left, const Value& right) {
    return left.isNull() || right.isNull();
}

void refuseArrays(const Value& left, const Value& right) {
    if (left.kind() == Kind::Array || right.kind() == Kind::Array) throw RunTimeError(ErrorNumber::TypeMismatch);
}

// Booleans and Empty count as whole numbers.
std::optional<qint64> wholeKind(const Value& value) {
    if (const auto* integer = value.as<qint64>()) return *integer;
    if (const auto* boolean = value.as<bool>()) return *boolean ? -1 : 0;
    if (value.isEmpty()) return 0;
    return std::nullopt;
}

bool isDate(const Value& value) {
    return value.kind() == Kind::Date;
}

bool isNumberText(const Value& value, double& number) {
    const auto* text = value.as<QString>();
    return text != nullptr && readsAsNumber(*text, number);
}

std::optional<bool> readTruth(const Value& value) {
    const auto* text = value.as<QString>();
    if (text == nullptr) return std::nullopt;
    if (compareNames(*text, u"True") == 0) return true;
    if (compareNames(*text, u"False") == 0) return false;
    return std::nullopt;
}

// Sum, difference or product: exact on whole numbers, a date stays a date where that has a meaning.
template <class Operation>
Value arithmetic(const Value& left, const Value& right, bool makesDate, Operation operation) {
    const auto wholeLeft = wholeKind(left);
    const auto wholeRight = wholeKind(right);
    if (wholeLeft && wholeRight) {
        const auto exact = operation(static_cast<double>(*wholeLeft), static_cast<double>(*wholeRight));
        // Beyond 2^53 the double has grown out of exactness; below it is the exact result.
        constexpr double kExact = 9007199254740992.0;
        return std::abs(exact) < kExact ? wholeValue(static_cast<qint64>(exact)) : Value(exact);
    }
    if (anyNull(left, right)) return Value::Null{};
    const double result = operation(numberOf(left), numberOf(right));
    if (makesDate) return checkedDate(result);
    return finite(result);
}

// Negative, zero or positive as left is less than, equal to or greater than right.
int compare(const Value& left, const Value& right) {
    refuseArrays(left, right);
    const auto* leftText = left.as<QString>();
    const auto* rightText = right.as<QString>();
    if (leftText != nullptr && rightText != nullptr) return leftText->compare(*rightText);
    if (leftText != nullptr) return -compare(right, left);
    double rightNumber = 0;
    if (rightText != nullptr) {
        if (left.isEmpty()) return rightText->isEmpty() ? 0 : -1;
        if (!isNumberText(right, rightNumber)) {
            const auto date = isDate(left) ? readDate(*rightText, nullptr) : std::nullopt;
            // A number is less than any text that is no number.
            if (!date) return -1;
            rightNumber = date->days;
        }
    } else {
        rightNumber = right.number();
    }
    const double leftNumber = left.number();
    if (leftNumber == rightNumber) return 0;
    return leftNumber < rightNumber ? -1 : 1;
}

template <class Test>
Value comparison(const Value& left, const Value& right, Test test) {
    if (anyNull(left, right)) return Value::Null{};
    return test(compare(left, right));
}

struct Bits {
    qint64 bits = 0;
    bool boolean = false;
};

Bits bitsOf(const Value& value) {
    if (const auto* boolean = value.as<bool>()) return {*boolean ? -1 : 0, true};
    double number = 0;
    if (value.isText() && !isNumberText(value, number)) {
        if (const auto truth = readTruth(value)) return {*truth ? -1 : 0, true};
    }
    return {wholeNumber32(numberOf(value)), false};
}

template <class Operation>
Value logical(const Value& left, const Value& right, Operation operation) {
    if (anyNull(left, right)) return Value::Null{};
    const Bits leftBits = bitsOf(left);
    const Bits rightBits = bitsOf(right);
    const qint64 result = operation(leftBits.bits, rightBits.bits);
    if (leftBits.boolean && rightBits.boolean) return result != 0;
    return result;
}

// The value that decides whatever the other side is, for an operation with Null on one side.
Value decidedBy(const Value& value, qint64 deciding, qint64 result) {
    if (value.isNull()) return Value::Null{};
    const Bits bits = bitsOf(value);
    if (bits.bits != deciding) return Value::Null{};
    if (bits.boolean) return result != 0;
    return result;
}

}  // namespace

double numberOf(const Value& value) {
    const auto* text = value.as<QString>();
    if (text == nullptr) return value.number();
    double number = 0;
    if (!readNumberText(*text, number)) {
        throw RunTimeError(ErrorNumber::TypeMismatch, u"'[string: \""_s + text->left(kQuotedInErrors) + u"\"]'"_s);
    }
    return number;
}

Value wholeValue(qint64 number) {
    if (number < std::numeric_limits<qint32>::min() || number > std::numeric_limits<qint32>::max()) {
        return static_cast<double>(number);
    }
    return number;
}

Value finite(double number) {
    if (!std::isfinite(number)) throw RunTimeError(ErrorNumber::Overflow);
    return number;
}

bool truthOf(const Value& value) {
    if (const auto truth = readTruth(value)) return *truth;
    return numberOf(value) != 0;
}

Value power(const Value& left, const Value& right) {
    if (anyNull(left, right)) return Value::Null{};
    const double base = numberOf(left);
    const double exponent = numberOf(right);
    require(base >= 0 || exponent == std::trunc(exponent));
    require(base != 0 || exponent >= 0);
    return finite(std::pow(base, exponent));
}

Value quotient(const Value& left, const Value& right) {
    if (anyNull(left, right)) return Value::Null{};
    const double dividend = numberOf(left);
    const double divisor = numberOf(right);
    if (divisor == 0) throw RunTimeError(ErrorNumber::DivisionByZero);
    return finite(dividend / divisor);
}

Value product(const Value& left, const Value& right) {
    return arithmetic(left, right, false, [](double a, double b) { return a * b; });
}

Value wholeQuotient(const Value& left, const Value& right) {
    if (anyNull(left, right)) return Value::Null{};
    const qint64 dividend = wholeNumber32(numberOf(left));
    const qint64 divisor = wholeNumber32(numberOf(right));
    if (divisor == 0) throw RunTimeError(ErrorNumber::DivisionByZero);
    return wholeValue(dividend / divisor);
}

Value modulo(const Value& left, const Value& right) {
    if (anyNull(left, right)) return Value::Null{};
    const qint64 dividend = wholeNumber32(numberOf(left));
    const qint64 divisor = wholeNumber32(numberOf(right));
    if (divisor == 0) throw RunTimeError(ErrorNumber::DivisionByZero);
    return wholeValue(dividend % divisor);
}

Value sum(const Value& left, const Value& right) {
    if (left.isText() && right.isText()) return join(left, right);
    // Empty adds nothing, not even to a text.
    if (left.isEmpty() && right.isText()) return right;
    if (right.isEmpty() && left.isText()) return left;
    return arithmetic(left, right, isDate(left) || isDate(right), [](double a, double b) { return a + b; });
}

Value difference(const Value& left, const Value& right) {
    return arithmetic(left, right, isDate(left) && !isDate(right), [](double a, double b) { return a - b; });
}

Value join(const Value& left, const Value& right) {
    refuseArrays(left, right);
    if (left.isNull() && right.isNull()) return Value::Null{};
    const QString leftText = left.text();
    const QString rightText = right.text();
    requireLength(leftText.size() + rightText.size());
    return QString(leftText + rightText);
}

Value negated(const Value& operand) {
    if (operand.isNull()) return operand;
    if (const auto whole = wholeKind(operand)) return wholeValue(-*whole);
    if (isDate(operand)) return checkedDate(-operand.number());
    return -numberOf(operand);
}

Value unchangedNumber(const Value& operand) {
    if (operand.kind() == Kind::Array) throw RunTimeError(ErrorNumber::TypeMismatch);
    return operand;
}

Value equal(const Value& left, const Value& right) {
    return comparison(left, right, [](int order) { return order == 0; });
}
Value unequal(const Value& left, const Value& right) {
    return comparison(left, right, [](int order) { return order != 0; });
}
Value less(const Value& left, const Value& right) {
    return comparison(left, right, [](int order) { return order < 0; });
}
Value greater(const Value& left, const Value& right) {
    return comparison(left, right, [](int order) { return order > 0; });
}
Value lessOrEqual(const Value& left, const Value& right) {
    return comparison(left, right, [](int order) { return order <= 0; });
}
Value greaterOrEqual(const Value& left, const Value& right) {
    return comparison(left, right, [](int order) { return order >= 0; });
}

Value logicalNot(const Value& operand) {
    if (operand.isNull()) return operand;
    const Bits bits = bitsOf(operand);
    if (bits.boolean) return bits.bits == 0;
    return ~bits.bits;
}

Value logicalAnd(const Value& left, const Value& right) {
    if (anyNull(left, right)) return decidedBy(left.isNull() ? right : left, 0, 0);
    return logical(left, right, [](qint64 a, qint64 b) { return a & b; });
}

Value logicalOr(const Value& left, const Value& right) {
    if (anyNull(left, right)) return decidedBy(left.isNull() ? right : left, -1, -1);
    return logical(left, right, [](qint64 a, qint64 b) { return a | b; });
}

Value logicalXor(const Value& left, const Value& right) {
    return logical(left, right, [](qint64 a, qint64 b) { return a ^ b; });
}

Value logicalEqv(const Value& left, const Value& right) {
    return logical(left, right, [](qint64 a, qint64 b) { return ~(a ^ b); });
}

Value logicalImp(const Value& left, const Value& right) {
    if (right.isNull()) return decidedBy(left, 0, -1);
    if (left.isNull()) return decidedBy(right, -1, -1);
    return logical(left, right, [](qint64 a, qint64 b) { return ~a | b; });
}

}  // namespace zelvor::script
