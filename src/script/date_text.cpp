#include "script/date_text.h"

#include <QDate>
#include <QVarLengthArray>

#include "script/lexer.h"

namespace zelvor::script {

namespace {

enum class PartKind { Number, Word, Sign };

struct Part {
    PartKind kind = PartKind::Sign;
    qint64 number = 0;
    qsizetype digits = 0;
    QStringView text;
};

using Parts = QVarLengthArray<Part, 16>;

constexpr qsizetype kMostDigits = 4;

// Numbers, words and signs; blanks only part them. False for what no date holds.
bool cut(QStringView text, Parts& parts) {
    qsizetype at = 0;
    while (at < text.size()) {
        const qsizetype start = at;
        Part part;
        if (isDigit(text[at])) {
            part.kind = PartKind::Number;
            for (; at < text.size() && isDigit(text[at]); ++at) {
                if (++part.digits > kMostDigits) return false;
                part.number = part.number * 10 + text[at].digitValue();
            }
        } else if (text[at].isLetter()) {
            part.kind = PartKind::Word;
            while (at < text.size() && text[at].isLetter()) ++at;
        } else if (text[at++].isSpace()) {
            continue;
        }
        part.text = text.mid(start, at - start);
        parts.append(part);
    }
    return true;
}

class DateReader {
 public:
    DateReader(const Parts& parts, const Evaluator::Clock* clock) : parts_(parts), clock_(clock) {}

    std::optional<Value::Date> read() {
        if (parts_.isEmpty()) return std::nullopt;
        DaySecond when;
        const bool timeOnly = isTimeAt(0);
        if (timeOnly ? !readTime(when.second) : !readDay(when.day)) return std::nullopt;
        if (next_ < parts_.size()) {
            if (timeOnly) {
                if (!readDay(when.day)) return std::nullopt;
            } else {
                if (isWord(next_, u"T")) ++next_;
                if (!isTimeAt(next_) || !readTime(when.second)) return std::nullopt;
            }
        }
        if (next_ != parts_.size()) return std::nullopt;
        return serialDate(when);
    }

 private:
    [[nodiscard]] bool isNumber(qsizetype at) const {
        return at < parts_.size() && parts_[at].kind == PartKind::Number;
    }
    [[nodiscard]] bool isSign(qsizetype at, QChar sign) const {
        return at < parts_.size() && parts_[at].kind == PartKind::Sign && parts_[at].text == sign;
    }
    [[nodiscard]] bool isWord(qsizetype at, QStringView word) const {
        return at < parts_.size() && parts_[at].kind == PartKind::Word && compareNames(parts_[at].text, word) == 0;
    }
    [[nodiscard]] bool isHalfOfDay(qsizetype at) const { return isWord(at, u"AM") || isWord(at, u"PM"); }
    [[nodiscard]] bool isTimeAt(qsizetype at) const {
        return isNumber(at) && (isSign(at + 1, u':') || isHalfOfDay(at + 1));
    }
    // 1 to 12 for a month's name or its first three letters, else 0.
    [[nodiscard]] int monthAt(qsizetype at) const {
        if (at >= parts_.size() || parts_[at].kind != PartKind::Word) return 0;
        for (size_t i = 0; i < kMonthNames.size(); ++i) {
            if (isWord(at, kMonthNames[i]) || isWord(at, kMonthNames[i].left(kShortName)))
                return static_cast<int>(i) + 1;
        }
        return 0;
    }

    bool readTime(qint64& second) {
        std::array<qint64, 3> units{};
        size_t count = 0;
        do {
            if (!isNumber(next_) || parts_[next_].digits > 2) return false;
            units[count++] = parts_[next_++].number;
        } while (count < units.size() && isSign(next_, u':') && ++next_ > 0);
        if (isHalfOfDay(next_)) {
            if (units[0] < 1 || units[0] > 12) return false;
            units[0] = units[0] % 12 + (isWord(next_, u"PM") ? 12 : 0);
            ++next_;
        } else if (count == 1) {
            return false;
        }
        if (units[0] > 23 || units[1] > 59 || units[2] > 59) return false;
        second = units[0] * 3600 + units[1] * 60 + units[2];
        return true;
    }

    bool readDay(qint64& day) {
        if (monthAt(next_) != 0 || monthAt(next_ + 1) != 0 || monthAt(next_ + 2) != 0) return readNamedMonth(day);
        if (!isNumber(next_)) return false;
        const QChar sign = next_ + 1 < parts_.size() ? parts_[next_ + 1].text.front() : QChar();
        if (sign != u'-' && sign != u'/' && sign != u'.') return false;
        std::array<Part, 3> units;
        size_t count = 0;
        do {
            if (!isNumber(next_)) return false;
            units[count++] = parts_[next_++];
        } while (count < units.size() && isSign(next_, sign) && ++next_ > 0);
        // "3.14" is a number.
        if (count == 2) return sign != u'.' && makeDay(currentYear(), units[0].number, units[1].number, day);
        if (units[0].digits > 2) return makeDay(units[0].number, units[1].number, units[2].number, day);
        // Points are written between day and month, strokes between month and day.
        qint64 month = units[0].number;
        qint64 dayOfMonth = units[1].number;
        if (sign == u'.' || (month > 12 && dayOfMonth <= 12)) std::swap(month, dayOfMonth);
        return makeDay(fullYear(units[2].number), month, dayOfMonth, day);
    }

    // "21 November 2026", "Nov 21, 2026", "21-Nov-2026", each without its year too.
    bool readNamedMonth(qint64& day) {
        qint64 dayOfMonth = 0;
        int month = monthAt(next_);
        if (month != 0) {
            ++next_;
            skipSeparator();
            if (!isNumber(next_)) return false;
            dayOfMonth = parts_[next_++].number;
        } else {
            if (!isNumber(next_)) return false;
            dayOfMonth = parts_[next_++].number;
            skipSeparator();
            month = monthAt(next_++);
        }
        skipSeparator();
        const bool hasYear = isNumber(next_) && !isTimeAt(next_);
        const auto year = hasYear ? std::optional(fullYear(parts_[next_++].number)) : currentYear();
        return makeDay(year, month, dayOfMonth, day);
    }

    void skipSeparator() {
        if (isSign(next_, u'-') || isSign(next_, u',') || isSign(next_, u'/')) ++next_;
    }

    [[nodiscard]] std::optional<qint64> currentYear() const {
        if (clock_ == nullptr) return std::nullopt;
        return (*clock_)().date().year();
    }

    static bool makeDay(std::optional<qint64> year, qint64 month, qint64 dayOfMonth, qint64& day) {
        if (!year) return false;
        const auto made = serialDay(*year, month, dayOfMonth);
        if (made) day = *made;
        return made.has_value();
    }

    const Parts& parts_;
    const Evaluator::Clock* clock_;
    qsizetype next_ = 0;
};

}  // namespace

std::optional<qint64> serialDay(qint64 year, qint64 month, qint64 day) {
    if (year < 100 || year > 9999 || month < 1 || month > 12 || day < 1 || day > 31) return std::nullopt;
    const QDate date(static_cast<int>(year), static_cast<int>(month), static_cast<int>(day));
    if (!date.isValid()) return std::nullopt;
    return DaySecond{}.date().daysTo(date);
}

qint64 fullYear(qint64 year) {
    if (year < 0 || year > 99) return year;
    return year < 30 ? 2000 + year : 1900 + year;
}

std::optional<Value::Date> readDate(QStringView text, const Evaluator::Clock* clock) {
    // Long enough for the longest date written out; what is longer is none.
    constexpr qsizetype kLongestDate = 64;
    Parts parts;
    if (text.size() > kLongestDate || !cut(text, parts)) return std::nullopt;
    return DateReader(parts, clock).read();
}

}  // namespace zelvor::script
