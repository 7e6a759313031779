#include "script/pattern.h"

#include <QVarLengthArray>
#include <algorithm>
#include <array>
#include <cmath>

#include "script/arguments.h"
#include "script/date_text.h"
#include "script/decimal.h"
#include "script/lexer.h"

using namespace Qt::StringLiterals;

namespace zelvor::script {

namespace {

// One character of a pattern, or a quoted run of them that is taken as it is.
struct Piece {
    QStringView text;
    bool literal = false;

    [[nodiscard]] bool is(char16_t character) const { return !literal && text.front() == character; }
    [[nodiscard]] bool isAnyOf(QStringView characters) const { return !literal && characters.contains(text.front()); }
};
using Pieces = QVarLengthArray<Piece, 32>;

constexpr QStringView kDigits = u"0#";
constexpr QStringView kDateLetters = u"dmyhnswqctDMYHNSWQCT";

Pieces cut(QStringView pattern) {
    Pieces pieces;
    for (qsizetype at = 0; at < pattern.size(); ++at) {
        if (pattern[at] == u'\\' && at + 1 < pattern.size()) {
            pieces.append({.text = pattern.mid(++at, 1), .literal = true});
        } else if (pattern[at] == u'"') {
            const qsizetype end = pattern.indexOf(u'"', at + 1);
            const qsizetype length = (end < 0 ? pattern.size() : end) - at - 1;
            if (length > 0) pieces.append({.text = pattern.mid(at + 1, length), .literal = true});
            at += length + 1;
        } else {
            pieces.append({.text = pattern.mid(at, 1), .literal = false});
        }
    }
    return pieces;
}

bool isDigitPlace(const Piece& piece) {
    return piece.isAnyOf(kDigits);
}

// One section of a number pattern, and how it was read.
class NumberSection {
 public:
    explicit NumberSection(std::span<const Piece> pieces) : pieces_(pieces) {
        const auto point = std::ranges::find_if(pieces_, [](const Piece& piece) { return piece.is(u'.'); });
        point_ = static_cast<size_t>(point - pieces_.begin());
        exponent_ = std::min(findExponent(u'+'), findExponent(u'-'));
        point_ = std::min(point_, exponent_);
        readScale();
    }

    [[nodiscard]] QString text(double magnitude, bool& isZero) const {
        int shift = 0;
        double scaled = magnitude * scale_;
        const auto places = static_cast<int>(std::count_if(at(point_), at(exponent_), isDigitPlace));
        const auto wanted = std::max<size_t>(1, static_cast<size_t>(std::count_if(at(0), at(point_), isDigitPlace)));
        if (hasExponent() && scaled != 0) {
            shift = static_cast<int>(std::floor(std::log10(scaled))) - static_cast<int>(wanted) + 1;
            scaled = magnitude * scale_ / std::pow(10.0, shift);
        }
        if (!std::isfinite(scaled)) scaled = magnitude;
        Decimal decimal = decimalOf(scaled, places, Halves::AwayFromZero);
        // 9.999 in the pattern 0.00E+00 is 1.00E+01.
        if (hasExponent() && decimal.whole.size() > wanted)
            decimal = decimalOf(magnitude * scale_ / std::pow(10.0, ++shift), places, Halves::AwayFromZero);
        const bool hasPlaces = std::any_of(at(0), at(exponent_), isDigitPlace);
        const bool roundsToZero = decimal.whole.empty() && decimal.fraction.find_first_not_of('0') == std::string::npos;
        isZero = magnitude == 0 || (hasPlaces && roundsToZero);
        QString result = wholePart(decimal.whole) + fractionPart(decimal.fraction);
        if (hasExponent()) result += exponentPart(shift);
        return result;
    }

 private:
    static bool sameLetter(const Piece& piece, char16_t letter) {
        return !piece.literal && piece.text.front().toUpper() == QChar(letter);
    }
    [[nodiscard]] size_t findExponent(char16_t signCharacter) const {
        const std::array<char16_t, 2> mark{u'E', signCharacter};
        const auto found = std::search(pieces_.begin(), pieces_.end(), mark.begin(), mark.end(), sameLetter);
        return static_cast<size_t>(found - pieces_.begin());
    }
    [[nodiscard]] bool hasExponent() const { return exponent_ < pieces_.size(); }
    [[nodiscard]] const Piece* at(size_t index) const { return pieces_.data() + index; }

    // A "," between whole digits groups thousands, one behind the last of them divides by a thousand; "%" shows
    // hundredths.
    void readScale() {
        const auto last =
            std::find_if(std::make_reverse_iterator(at(point_)), std::make_reverse_iterator(at(0)), isDigitPlace);
        lastWholeDigit_ = static_cast<size_t>(last.base() - at(0));
        for (size_t i = 0; i < exponent_; ++i) {
            if (!pieces_[i].is(u',')) continue;
            if (i < lastWholeDigit_) {
                grouped_ = true;
            } else {
                scale_ /= 1000;
            }
        }
        for (const Piece& piece : pieces_) {
            if (piece.is(u'%')) scale_ *= 100;
        }
    }

    [[nodiscard]] QString wholePart(const std::string& digits) const {
        QString reversed;
        size_t used = 0;
        size_t written = 0;
        const auto put = [&](QChar digit) {
            if (grouped_ && written > 0 && written % 3 == 0) reversed += u',';
            reversed += digit;
            ++written;
        };
        const auto firstPlace = static_cast<size_t>(std::find_if(at(0), at(point_), isDigitPlace) - at(0));
        for (size_t i = point_; i-- > 0;) {
            const Piece& piece = pieces_[i];
            if (isDigitPlace(piece)) {
                if (used < digits.size()) {
                    put(QLatin1Char(digits[digits.size() - ++used]));
                } else if (piece.is(u'0')) {
                    put(u'0');
                }
                // What the pattern has no places for stands before its first one.
                while (i == firstPlace && used < digits.size()) put(QLatin1Char(digits[digits.size() - ++used]));
            } else if (!piece.is(u',')) {
                for (qsizetype c = piece.text.size(); c-- > 0;) reversed += piece.text[c];
            }
        }
        // Digits are never dropped: a pattern such as ".00" shows them before its point.
        if (firstPlace == point_ && point_ < exponent_) {
            while (used < digits.size()) put(QLatin1Char(digits[digits.size() - ++used]));
        }
        std::ranges::reverse(reversed);
        return reversed;
    }

    [[nodiscard]] QString fractionPart(const std::string& digits) const {
        size_t wanted = digits.size();
        // Trailing zeros show only where the pattern has a "0".
        for (size_t i = exponent_; i-- > point_ && wanted > 0;) {
            if (!isDigitPlace(pieces_[i])) continue;
            if (pieces_[i].is(u'0') || digits[wanted - 1] != '0') break;
            --wanted;
        }
        QString result;
        size_t used = 0;
        for (size_t i = point_; i < exponent_; ++i) {
            if (!isDigitPlace(pieces_[i])) {
                if (!pieces_[i].is(u',')) result += pieces_[i].text;
            } else if (used < wanted) {
                result += QLatin1Char(digits[used++]);
            }
        }
        return result;
    }

    // "E+00" always shows a sign, "E-00" only a minus.
    [[nodiscard]] QString exponentPart(int exponent) const {
        QString result = pieces_[exponent_].text.toString();
        if (exponent < 0) {
            result += u'-';
        } else if (pieces_[exponent_ + 1].is(u'+')) {
            result += u'+';
        }
        const auto places = static_cast<int>(std::count_if(at(exponent_ + 2), at(pieces_.size()), isDigitPlace));
        result += QString::number(std::abs(exponent)).rightJustified(places, u'0');
        for (size_t i = exponent_ + 2; i < pieces_.size(); ++i) {
            if (!isDigitPlace(pieces_[i])) result += pieces_[i].text;
        }
        return result;
    }

    std::span<const Piece> pieces_;
    size_t point_ = 0;
    size_t exponent_ = 0;
    size_t lastWholeDigit_ = 0;
    double scale_ = 1;
    bool grouped_ = false;
};

QString number(int value, qsizetype width) {
    return QString::number(value).rightJustified(width, u'0');
}

QString monthText(int month, qsizetype letters) {
    const QStringView whole = kMonthNames[static_cast<size_t>(month - 1)];
    return (letters == 3 ? whole.left(kShortName) : whole).toString();
}

QString weekdayText(int weekdayFromSunday, qsizetype letters) {
    const QStringView whole = kWeekdayNames[static_cast<size_t>(weekdayFromSunday - 1)];
    return (letters == 3 ? whole.left(kShortName) : whole).toString();
}

class DateWriter {
 public:
    DateWriter(Value::Date when, const WeekRule& rule)
        : when_(when), day_(daySecond(when)), date_(day_.date()), second_(static_cast<int>(day_.second)), rule_(rule) {}

    [[nodiscard]] QString text(QStringView pattern) {
        const Pieces pieces = cut(pattern);
        static constexpr std::array<QStringView, 2> kHalfDays{u"AM/PM", u"A/P"};
        const bool halfDays = std::ranges::any_of(
            kHalfDays, [pattern](QStringView mark) { return pattern.contains(mark, Qt::CaseInsensitive); });
        QString result;
        for (qsizetype at = 0; at < pieces.size();) {
            if (halfDays && halfDayMark(pieces, at, result)) continue;
            if (!pieces[at].isAnyOf(kDateLetters)) {
                result += pieces[at++].text;
                continue;
            }
            const QChar letter = pieces[at].text.front().toLower();
            const qsizetype start = at;
            while (at < pieces.size() && !pieces[at].literal && pieces[at].text.front().toLower() == letter) ++at;
            result += unit(letter, at - start, halfDays);
            behindHour_ = letter == u'h';
        }
        return result;
    }

 private:
    // "AM/PM", "am/pm", "A/P" and "a/p" show in their own case.
    bool halfDayMark(const Pieces& pieces, qsizetype& at, QString& result) const {
        for (const qsizetype half : {2, 1}) {
            const qsizetype size = 2 * half + 1;
            if (at + size > pieces.size()) continue;
            QString mark;
            for (qsizetype i = at; i < at + size; ++i) mark += pieces[i].literal ? QStringView(u"\"") : pieces[i].text;
            if (compareNames(mark, half == 2 ? u"AM/PM" : u"A/P") != 0) continue;
            result += second_ < 12 * 3600 ? mark.left(half) : mark.right(half);
            at += size;
            return true;
        }
        return false;
    }

    [[nodiscard]] QString unit(QChar letter, qsizetype letters, bool halfDays) const {
        const qsizetype width = std::min<qsizetype>(letters, 2);
        switch (letter.unicode()) {
            case u'd':
                return dayUnit(letters);
            case u'm':
                if (behindHour_) return number(second_ / 60 % 60, width);
                return letters > 2 ? monthText(date_.month(), letters) : number(date_.month(), letters);
            case u'y':
                if (letters == 1) return number(date_.dayOfYear(), 1);
                return letters == 2 ? number(date_.year() % 100, 2) : number(date_.year(), 4);
            case u'h': {
                const int hour = second_ / 3600;
                return number(halfDays ? (hour + 11) % 12 + 1 : hour, width);
            }
            case u'n':
                return number(second_ / 60 % 60, width);
            case u's':
                return number(second_ % 60, width);
            case u'w':
                return number(letters == 1 ? weekdayNumber(day_.day, rule_.firstDay) : weekOfYear(day_.day, rule_), 1);
            case u'q':
                return number((date_.month() - 1) / 3 + 1, 1);
            case u'c':
                return dateText(when_);
            case u't':
                return letters == 5 ? formatDate(when_, u"hh:nn:ss", rule_) : QString(letters, letter);
            default:
                return {};
        }
    }

    [[nodiscard]] QString dayUnit(qsizetype letters) const {
        if (letters <= 2) return number(date_.day(), letters);
        if (letters <= 4) return weekdayText(weekdayNumber(day_.day, 1), letters);
        return formatDate(when_, letters == 5 ? u"yyyy-mm-dd" : u"dddd, mmmm d, yyyy", rule_);
    }

    Value::Date when_;
    DaySecond day_;
    QDate date_;
    int second_;
    const WeekRule& rule_;
    bool behindHour_ = false;
};

struct NamedPattern {
    QStringView name;
    QStringView pattern;
};

constexpr std::array kNamedPatterns{
    NamedPattern{u"Currency", u"$#,##0.00;($#,##0.00)"},
    NamedPattern{u"Fixed", u"0.00"},
    NamedPattern{u"Standard", u"#,##0.00"},
    NamedPattern{u"Percent", u"0.00%"},
    NamedPattern{u"Scientific", u"0.00E+00"},
    NamedPattern{u"Yes/No", u"\"Yes\";\"Yes\";\"No\""},
    NamedPattern{u"True/False", u"\"True\";\"True\";\"False\""},
    NamedPattern{u"On/Off", u"\"On\";\"On\";\"Off\""},
    NamedPattern{u"General Number", u""},
    NamedPattern{u"General Date", u"c"},
    NamedPattern{u"Long Date", u"dddddd"},
    NamedPattern{u"Medium Date", u"dd-mmm-yy"},
    NamedPattern{u"Short Date", u"ddddd"},
    NamedPattern{u"Long Time", u"ttttt"},
    NamedPattern{u"Medium Time", u"hh:nn AM/PM"},
    NamedPattern{u"Short Time", u"hh:nn"},
};

}  // namespace

QString formatNumber(double number, QStringView pattern) {
    const Pieces pieces = cut(pattern);
    std::array<std::span<const Piece>, 3> sections;
    size_t count = 0;
    auto rest = std::span<const Piece>(pieces.data(), static_cast<size_t>(pieces.size()));
    while (count < sections.size()) {
        const auto end = std::ranges::find_if(rest, [](const Piece& piece) { return piece.is(u';'); });
        const auto size = static_cast<size_t>(end - rest.begin());
        sections[count++] = rest.first(size);
        if (size == rest.size()) break;
        rest = rest.subspan(size + 1);
    }
    // An empty section shows as the first one does.
    const bool ownNegative = count > 1 && !sections[1].empty();
    bool isZero = false;
    const QString text =
        NumberSection(number < 0 && ownNegative ? sections[1] : sections[0]).text(std::abs(number), isZero);
    if (isZero) {
        const bool ownZero = count > 2 && !sections[2].empty();
        return NumberSection(ownZero ? sections[2] : sections[0]).text(0, isZero);
    }
    return number < 0 && !ownNegative ? u'-' + text : text;
}

QString formatDate(Value::Date date, QStringView pattern, const WeekRule& rule) {
    return DateWriter(date, rule).text(pattern);
}

QString formatText(QStringView text, QStringView pattern) {
    const Pieces pieces = cut(pattern);
    const auto isPlace = [](const Piece& piece) { return piece.isAnyOf(u"@&"); };
    const auto has = [&pieces](char16_t mark) {
        return std::ranges::any_of(pieces, [mark](const Piece& piece) { return piece.is(mark); });
    };
    const qsizetype places = std::ranges::count_if(pieces, isPlace);
    // Places without a character stand first, unless "!" fills from the left.
    qsizetype missing = has(u'!') ? 0 : std::max<qsizetype>(0, places - text.size());
    qsizetype used = 0;
    qsizetype placesLeft = places;
    QString result;
    for (const Piece& piece : pieces) {
        if (isPlace(piece)) {
            --placesLeft;
            if (missing > 0) {
                --missing;
                if (piece.is(u'@')) result += u' ';
            } else if (used < text.size()) {
                // The first place takes what the text has more than the pattern.
                const qsizetype length = std::max<qsizetype>(1, text.size() - used - placesLeft);
                result += text.mid(used, used == 0 ? length : 1);
                used += used == 0 ? length : 1;
            } else if (piece.is(u'@')) {
                result += u' ';
            }
        } else if (!piece.isAnyOf(u"<>!")) {
            result += piece.text;
        }
    }
    if (places == 0) result += text;
    if (has(u'<')) return result.toLower();
    return has(u'>') ? result.toUpper() : result;
}

PatternKind kindOf(QStringView pattern) {
    const Pieces pieces = cut(pattern);
    const auto holds = [&pieces](QStringView characters) {
        return std::ranges::any_of(pieces, [characters](const Piece& piece) { return piece.isAnyOf(characters); });
    };
    if (holds(kDigits)) return PatternKind::Number;
    if (holds(u"@&<>!")) return PatternKind::Text;
    return holds(kDateLetters) ? PatternKind::Date : PatternKind::Literal;
}

QStringView namedPattern(QStringView name) {
    for (const NamedPattern& row : kNamedPatterns) {
        if (compareNames(name, row.name) == 0) return row.pattern;
    }
    return name;
}

}  // namespace zelvor::script
