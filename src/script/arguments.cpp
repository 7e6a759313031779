#include "script/arguments.h"

#include <cmath>

#include "base/number.h"
#include "base/run_time_error.h"
#include "script/date_text.h"
#include "script/operators.h"

namespace zelvor::script {

namespace {

// The first of January 100 and the end of 9999.
constexpr double kFirstDay = -657434;
constexpr double kBehindLastDay = 2958466;

}  // namespace

TextOf::TextOf(const Value& value) {
    if (value.isNull()) throw RunTimeError(ErrorNumber::InvalidUseOfNull);
    if (value.kind() == Value::Kind::Array) throw RunTimeError(ErrorNumber::TypeMismatch);
    if (const auto* own = value.as<QString>()) {
        view_ = *own;
    } else {
        made_ = value.text();
        view_ = made_;
    }
}

double Arguments::number(qsizetype index) const {
    return numberOf((*this)[index]);
}

qint64 Arguments::whole(qsizetype index) const {
    if (const auto* integer = (*this)[index].as<qint64>()) return *integer;
    return wholeNumber32(number(index));
}

qint64 Arguments::whole(qsizetype index, qint64 whenAbsent) const {
    return has(index) ? whole(index) : whenAbsent;
}

bool Arguments::truth(qsizetype index, bool whenAbsent) const {
    return has(index) ? truthOf((*this)[index]) : whenAbsent;
}

const std::vector<Value>& Arguments::array(qsizetype index) const {
    if ((*this)[index].isNull()) throw RunTimeError(ErrorNumber::InvalidUseOfNull);
    const auto* array = (*this)[index].as<Value::Array>();
    if (array == nullptr) throw RunTimeError(ErrorNumber::TypeMismatch);
    return **array;
}

Value::Date Arguments::date(qsizetype index) const {
    const Value& value = (*this)[index];
    if (const auto* date = value.as<Value::Date>()) return *date;
    if (const auto* text = value.as<QString>()) {
        if (const auto date = readDate(*text, &environment_.clock)) return *date;
    }
    return checkedDate(numberOf(value));
}

Qt::CaseSensitivity Arguments::comparison(qsizetype index) const {
    const qint64 kind = whole(index, 0);
    require(kind == 0 || kind == 1);
    return kind == 0 ? Qt::CaseSensitive : Qt::CaseInsensitive;
}

void require(bool condition) {
    if (!condition) throw RunTimeError(ErrorNumber::InvalidProcedureCall);
}

void requireLength(qsizetype length) {
    if (length > kLongestText) throw RunTimeError(ErrorNumber::OutOfMemory);
}

bool isDateInRange(double days) {
    return days > kFirstDay - 1 && days < kBehindLastDay;
}

Value::Date checkedDate(double days) {
    if (!isDateInRange(days)) throw RunTimeError(ErrorNumber::Overflow);
    return {days};
}

}  // namespace zelvor::script
