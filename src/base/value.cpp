#include "base/value.h"

#include <charconv>
#include <cmath>

#include "base/number.h"
#include "base/run_time_error.h"
#include "plain/number.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

constexpr qint64 kSecondsADay = 86400;

QDate epoch() {
    return {1899, 12, 30};
}

QTime timeOfSecond(qint64 second) {
    return QTime::fromMSecsSinceStartOfDay(static_cast<int>(second * 1000));
}

}  // namespace

DaySecond daySecond(Value::Date date) {
    const double whole = std::trunc(date.days);
    auto day = static_cast<qint64>(whole);
    auto second = static_cast<qint64>(std::llround(std::abs(date.days - whole) * kSecondsADay));
    if (second == kSecondsADay) {
        second = 0;
        ++day;
    }
    return {day, second};
}

Value::Date serialDate(DaySecond when) {
    const auto days = static_cast<double>(when.day);
    const double part = static_cast<double>(when.second) / kSecondsADay;
    return {days < 0 ? days - part : days + part};
}

QDate DaySecond::date() const {
    return epoch().addDays(day);
}

Value Value::fromDateTime(const QDateTime& when) {
    const auto days = static_cast<double>(epoch().daysTo(when.date()));
    const double part = when.time().msecsSinceStartOfDay() / (kSecondsADay * 1000.0);
    return Date{days < 0 ? days - part : days + part};
}

QDateTime toDateTime(Value::Date date) {
    const auto [day, second] = daySecond(date);
    return {epoch().addDays(day), timeOfSecond(second)};
}

QString dateText(Value::Date date) {
    const auto [day, second] = daySecond(date);
    QString time = timeOfSecond(second).toString(u"HH:mm:ss"_s);
    if (day == 0) return time;
    const QString isoDate = epoch().addDays(day).toString(Qt::ISODate);
    return second == 0 ? isoDate : isoDate + u' ' + time;
}

QString Value::text() const {
    switch (kind()) {
        case Kind::Empty:
        case Kind::Null:
            return {};
        case Kind::Boolean:
            return *as<bool>() ? u"True"_s : u"False"_s;
        case Kind::Integer:
            return QString::number(*as<qint64>());
        case Kind::Double:
            return numberText(*as<double>());
        case Kind::Date:
            return dateText(*as<Date>());
        case Kind::Text:
            return *as<QString>();
        case Kind::Array: {
            QStringList elements;
            for (const Value& element : **as<Array>()) elements += element.text();
            return elements.join(u", "_s);
        }
    }
    Q_UNREACHABLE();
}

void Value::appendTo(TextWriter& out) const {
    if (const auto* own = as<QString>()) {
        out += *own;
    } else if (const auto* number = as<double>()) {
        plain::NumberBuffer buffer;
        out += plain::numberText(*number, buffer);
    } else if (const auto* whole = as<qint64>()) {
        plain::NumberBuffer digits;
        out += std::string_view(digits.data(), std::to_chars(digits.begin(), digits.end(), *whole).ptr);
    } else {
        out += text();
    }
}

void Value::setText(QStringView text) {
    if (auto* own = std::get_if<QString>(&data_)) {
        own->setUnicode(text.data(), text.size());
    } else {
        data_ = text.toString();
    }
}

double Value::leadingNumber() const {
    if (const auto* own = as<QString>()) return Val(*own);
    return isNull() ? 0 : number();
}

double Value::number() const {
    switch (kind()) {
        case Kind::Empty:
            return 0;
        case Kind::Null:
            throw RunTimeError(ErrorNumber::InvalidUseOfNull);
        case Kind::Boolean:
            return *as<bool>() ? -1 : 0;
        case Kind::Integer:
            return static_cast<double>(*as<qint64>());
        case Kind::Double:
            return *as<double>();
        case Kind::Date:
            return as<Date>()->days;
        case Kind::Text: {
            double parsed = 0;
            if (!readNumber(*as<QString>(), parsed)) throw RunTimeError(ErrorNumber::TypeMismatch);
            return parsed;
        }
        case Kind::Array:
            throw RunTimeError(ErrorNumber::TypeMismatch);
    }
    Q_UNREACHABLE();
}

}  // namespace zelvor
