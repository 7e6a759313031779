#pragma once

#include <QDateTime>
#include <QString>
#include <memory>
#include <variant>
#include <vector>

#include "base/text_writer.h"

namespace zelvor {

// What a variable, a cell of a query result and an evaluated expression hold. One type for all three, so that
// nothing is converted on the way.
class Value {
 public:
    struct Null {
        bool operator==(const Null&) const = default;
    };
    // Days since 30 December 1899, the time of day as the fraction.
    struct Date {
        double days = 0;
        bool operator==(const Date&) const = default;
    };
    using Array = std::shared_ptr<const std::vector<Value>>;

    enum class Kind { Empty, Null, Boolean, Integer, Double, Date, Text, Array };

    Value() = default;
    Value(Null null) : data_(null) {}        // NOLINT(google-explicit-constructor): a Value is made from any kind
    Value(bool boolean) : data_(boolean) {}  // NOLINT(google-explicit-constructor)
    Value(int integer) : data_(static_cast<qint64>(integer)) {}  // NOLINT(google-explicit-constructor)
    Value(qint64 integer) : data_(integer) {}                    // NOLINT(google-explicit-constructor)
    Value(double number) : data_(number) {}                      // NOLINT(google-explicit-constructor)
    Value(Date date) : data_(date) {}                            // NOLINT(google-explicit-constructor)
    Value(QString text) : data_(std::move(text)) {}              // NOLINT(google-explicit-constructor)
    Value(Array array) : data_(std::move(array)) {}              // NOLINT(google-explicit-constructor)
    Value(const char*) = delete;

    static Value fromDateTime(const QDateTime& when);

    [[nodiscard]] Kind kind() const { return static_cast<Kind>(data_.index()); }
    [[nodiscard]] bool isEmpty() const { return kind() == Kind::Empty; }
    [[nodiscard]] bool isNull() const { return kind() == Kind::Null; }
    [[nodiscard]] bool isText() const { return kind() == Kind::Text; }

    // The alternative of that kind; null when the value is of another kind.
    template <class T>
    [[nodiscard]] const T* as() const {
        return std::get_if<T>(&data_);
    }

    // As text: Empty and Null read as the empty text, dates in ISO form ("2026-11-21 20:31:07"; the date or the time
    // alone where the other is zero), numbers with 15 significant digits, an array as its elements joined by ", ".
    [[nodiscard]] QString text() const;
    // Appends text() to `out` without a copy of a text value.
    void appendTo(TextWriter& out) const;

    // The leading number of the text, 0 when there is none; True is -1.
    [[nodiscard]] double leadingNumber() const;
    // The value as a number: a text that is no number throws 13, Null throws 94, Empty is 0, True is -1.
    [[nodiscard]] double number() const;

    // Becomes a text value; the memory of one that it holds is used again.
    void setText(QStringView text);

    bool operator==(const Value&) const = default;

 private:
    std::variant<std::monostate, Null, bool, qint64, double, Date, QString, Array> data_;
};

// ISO text of a serial date, as Value::text() writes it.
QString dateText(Value::Date date);
QDateTime toDateTime(Value::Date date);

// A serial date as whole day (0 is 30 December 1899) and second of that day, rounded to the second. The fraction is
// always positive time, before the epoch as after it.
struct DaySecond {
    qint64 day = 0;
    qint64 second = 0;

    [[nodiscard]] QDate date() const;
};
DaySecond daySecond(Value::Date date);
Value::Date serialDate(DaySecond when);

}  // namespace zelvor
