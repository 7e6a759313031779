#pragma once

#include <QString>
#include <QStringView>
#include <optional>
#include <span>

#include "base/value.h"
#include "script/evaluator.h"

namespace zelvor::script {

// What one evaluation shares between its functions.
struct Environment {
    const Evaluator::Clock& clock;
    const Evaluator::Random& random;
    int depth = 0;
    std::optional<double> lastRandom;
};

// Texts longer than this (UTF-16 units) are refused with 7 Out of memory.
inline constexpr qsizetype kLongestText = qsizetype{16} * 1024 * 1024;

// One argument of a call; Replace(a, b, c, , 1) leaves its fourth out.
struct Argument {
    Value value;
    bool given = true;
};

// A value's text: a view of the value's own where it has one.
class TextOf {
 public:
    // Throws 94 for Null and 13 for an array. The value must outlive this.
    explicit TextOf(const Value& value);
    TextOf(const TextOf&) = delete;
    TextOf& operator=(const TextOf&) = delete;

    operator QStringView() const { return view_; }  // NOLINT(google-explicit-constructor): it is a view with a store
    [[nodiscard]] QStringView view() const { return view_; }
    [[nodiscard]] QString string() const { return view_.toString(); }

 private:
    QString made_;
    QStringView view_;
};

// The arguments of one call, read in the same words by all functions. What does not fit throws 13, 94, 5 or 6; the
// caller adds the function's name and the position.
class Arguments {
 public:
    Arguments(std::span<const Argument> arguments, Environment& environment)
        : arguments_(arguments), environment_(environment) {}

    [[nodiscard]] qsizetype count() const { return static_cast<qsizetype>(arguments_.size()); }
    [[nodiscard]] bool has(qsizetype index) const {
        return index < count() && arguments_[static_cast<size_t>(index)].given;
    }
    [[nodiscard]] const Value& operator[](qsizetype index) const {
        return arguments_[static_cast<size_t>(index)].value;
    }

    [[nodiscard]] TextOf text(qsizetype index) const { return TextOf((*this)[index]); }
    [[nodiscard]] double number(qsizetype index) const;
    // A whole number of 32 bits, halves to even.
    [[nodiscard]] qint64 whole(qsizetype index) const;
    [[nodiscard]] qint64 whole(qsizetype index, qint64 whenAbsent) const;
    [[nodiscard]] bool truth(qsizetype index, bool whenAbsent) const;
    [[nodiscard]] const std::vector<Value>& array(qsizetype index) const;
    // A date, a text that reads as one, or a number as serial date.
    [[nodiscard]] Value::Date date(qsizetype index) const;
    // 0 compares exactly, 1 without regard to case; anything else throws 5.
    [[nodiscard]] Qt::CaseSensitivity comparison(qsizetype index) const;

    [[nodiscard]] Environment& environment() const { return environment_; }

 private:
    std::span<const Argument> arguments_;
    Environment& environment_;
};

// Throws 5 unless the condition holds.
void require(bool condition);
// Throws 7 when a text would grow beyond kLongestText.
void requireLength(qsizetype length);

// Throws 6 when the date is not in the years 100 to 9999.
Value::Date checkedDate(double days);
bool isDateInRange(double days);

}  // namespace zelvor::script
