#include "data/cell_value.h"

#include <sql.h>
#include <sqlext.h>

#include <charconv>
#include <cmath>
#include <optional>

namespace zelvor::odbc {

namespace {

constexpr int kDigitsOfDouble = 15;

template <class Number>
std::optional<Number> wholeText(QByteArrayView bytes) {
    Number number{};
    const auto [end, error] = std::from_chars(bytes.begin(), bytes.end(), number);
    if (error != std::errc() || end != bytes.end()) return std::nullopt;
    return number;
}

int significantDigits(QByteArrayView bytes) {
    int digits = 0;
    for (const char c : bytes) {
        if (c == 'e' || c == 'E') break;
        if (c >= '1' && c <= '9') ++digits;
        if (c == '0' && digits > 0) ++digits;
    }
    return digits;
}

std::optional<Value> decimal(QByteArrayView bytes) {
    const std::optional<double> number = wholeText<double>(bytes);
    if (!number || !std::isfinite(*number) || significantDigits(bytes) > kDigitsOfDouble) return std::nullopt;
    return Value(*number);
}

// Two digits at `at`; -1 when there are none.
int twoDigits(QByteArrayView bytes, qsizetype at) {
    if (at + 2 > bytes.size()) return -1;
    return wholeText<int>(bytes.sliced(at, 2)).value_or(-1);
}

// "20:31", "20:31:07" and with a fraction, which is dropped: a date reads in whole seconds.
QTime time(QByteArrayView bytes) {
    const int hour = twoDigits(bytes, 0);
    const int minute = twoDigits(bytes, 3);
    if (hour < 0 || minute < 0 || bytes[2] != ':') return {};
    if (bytes.size() == 5) return {hour, minute};
    const int second = twoDigits(bytes, 6);
    if (second < 0 || bytes[5] != ':' || (bytes.size() > 8 && bytes[8] != '.')) return {};
    return {hour, minute, second};
}

QDate date(QByteArrayView bytes) {
    if (bytes.size() != 10 || bytes[4] != '-' || bytes[7] != '-') return {};
    return {wholeText<int>(bytes.first(4)).value_or(0), twoDigits(bytes, 5), twoDigits(bytes, 8)};
}

std::optional<Value> dateAndTime(QByteArrayView bytes) {
    if (const QTime alone = time(bytes); alone.isValid()) {
        return Value(Value::Date{alone.msecsSinceStartOfDay() / 86'400'000.0});
    }
    if (bytes.size() < 10) return std::nullopt;
    const QDate day = date(bytes.first(10));
    QTime timeOfDay(0, 0);
    if (bytes.size() > 10) {
        if (bytes[10] != ' ' && bytes[10] != 'T') return std::nullopt;
        timeOfDay = time(bytes.sliced(11));
    }
    if (!day.isValid() || !timeOfDay.isValid()) return std::nullopt;
    return Value::fromDateTime(QDateTime(day, timeOfDay, Qt::UTC));
}

std::optional<Value> typedValue(ColumnKind kind, QByteArrayView bytes) {
    switch (kind) {
        case ColumnKind::Integer:
            if (const std::optional<qint64> integer = wholeText<qint64>(bytes)) return Value(*integer);
            return decimal(bytes);
        case ColumnKind::Double:
            if (const std::optional<double> number = wholeText<double>(bytes); number && std::isfinite(*number)) {
                return Value(*number);
            }
            return std::nullopt;
        case ColumnKind::Decimal:
            return decimal(bytes);
        case ColumnKind::Boolean:
            // Drivers give a bit as the digit or as the byte itself.
            if (bytes.size() == 1 && (bytes[0] == '1' || bytes[0] == '\1')) return Value(true);
            if (bytes.size() == 1 && (bytes[0] == '0' || bytes[0] == '\0')) return Value(false);
            return std::nullopt;
        case ColumnKind::Date:
            return dateAndTime(bytes);
        case ColumnKind::Text:
        case ColumnKind::Binary:
            return std::nullopt;
    }
    Q_UNREACHABLE();
}

}  // namespace

ColumnKind columnKind(int sqlType) {
    switch (sqlType) {
        case SQL_TINYINT:
        case SQL_SMALLINT:
        case SQL_INTEGER:
        case SQL_BIGINT:
            return ColumnKind::Integer;
        case SQL_REAL:
        case SQL_FLOAT:
        case SQL_DOUBLE:
            return ColumnKind::Double;
        case SQL_DECIMAL:
        case SQL_NUMERIC:
            return ColumnKind::Decimal;
        case SQL_BIT:
            return ColumnKind::Boolean;
        case SQL_DATETIME:
        case SQL_TYPE_DATE:
        case SQL_TYPE_TIME:
        case SQL_TYPE_TIMESTAMP:
            return ColumnKind::Date;
        case SQL_BINARY:
        case SQL_VARBINARY:
        case SQL_LONGVARBINARY:
            return ColumnKind::Binary;
        default:
            return ColumnKind::Text;
    }
}

Value cellValue(ColumnKind kind, QByteArrayView bytes, CharacterSet& characterSet) {
    if (std::optional<Value> typed = typedValue(kind, bytes)) return *std::move(typed);
    return characterSet.decode(bytes);
}

}  // namespace zelvor::odbc
