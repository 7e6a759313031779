#include "base/number.h"

#include <QVarLengthArray>
#include <algorithm>
#include <charconv>
#include <limits>

#include "base/run_time_error.h"
#include "plain/number.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

bool isBlank(QChar c) {
    return c == u' ' || c == u'\t' || c == u'\n' || c == u'\r';
}
bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

using Ascii = QVarLengthArray<char, 64>;

// The text without blanks as ASCII, up to the first character that no number holds.
Ascii numberCharacters(QStringView text) {
    Ascii ascii;
    for (const QChar c : text) {
        if (isBlank(c)) continue;
        if (c.unicode() > 0x7E) break;
        ascii.append(static_cast<char>(c.unicode()));
    }
    return ascii;
}

// Parses the leading "&H..." or "&O..." number; `end` is set behind it. "&17" is octal as "&O17" is.
double radixNumber(const Ascii& ascii, const char*& end) {
    const char* const last = ascii.end();
    const char* digits = ascii.begin() + 1;
    const bool hexadecimal = digits != last && (*digits == 'H' || *digits == 'h');
    if (hexadecimal || (digits != last && (*digits == 'O' || *digits == 'o'))) ++digits;
    quint64 number = 0;
    const auto [parsed, error] = std::from_chars(digits, last, number, hexadecimal ? 16 : 8);
    if (error != std::errc()) {
        end = ascii.begin();
        return 0;
    }
    end = parsed;
    const bool wide = end != last && *end == '&';
    if (wide) ++end;
    if (number <= 0xFFFF && !wide) return static_cast<qint16>(number);
    if (number <= 0xFFFFFFFF) return static_cast<qint32>(number);
    return static_cast<double>(number);
}

// Parses the leading decimal number; `end` is set behind it. D is an exponent letter too.
double decimalNumber(Ascii& ascii, const char*& end) {
    char* const first = ascii.data();
    char* const last = first + ascii.size();
    char* at = first;
    if (at != last && (*at == '+' || *at == '-')) ++at;
    char* const digits = at;
    while (at != last && isDigit(*at)) ++at;
    auto count = at - digits;
    if (at != last && *at == '.') {
        char* const fraction = ++at;
        while (at != last && isDigit(*at)) ++at;
        count += at - fraction;
    }
    if (count == 0) {
        end = first;
        return 0;
    }
    char* mantissaEnd = at;
    if (at != last && (*at == 'E' || *at == 'e' || *at == 'D' || *at == 'd')) {
        char* exponent = at + 1;
        if (exponent != last && (*exponent == '+' || *exponent == '-')) ++exponent;
        if (exponent != last && isDigit(*exponent)) {
            *at = 'e';
            while (exponent != last && isDigit(*exponent)) ++exponent;
            mantissaEnd = exponent;
        }
    }
    double number = 0;
    const char* start = *first == '+' ? first + 1 : first;
    const auto [parsed, error] = std::from_chars(start, mantissaEnd, number);
    end = mantissaEnd;
    if (error == std::errc::result_out_of_range) {
        const char* exponent = std::find(first, mantissaEnd, 'e');
        const bool tooSmall =
            exponent != mantissaEnd ? exponent[1] == '-' : std::find(first, mantissaEnd, '.') != mantissaEnd;
        if (tooSmall) return 0;
        throw RunTimeError(ErrorNumber::Overflow);
    }
    return number;
}

double leadingNumber(Ascii& ascii, const char*& end) {
    return !ascii.isEmpty() && ascii[0] == '&' ? radixNumber(ascii, end) : decimalNumber(ascii, end);
}

template <class Whole>
Whole wholeNumber(double number) {
    const double rounded = plain::roundHalfEven(number);
    if (!(rounded >= std::numeric_limits<Whole>::min() && rounded <= std::numeric_limits<Whole>::max())) {
        throw RunTimeError(ErrorNumber::Overflow);
    }
    return static_cast<Whole>(rounded);
}

template <class Whole>
Whole wholeNumber(QStringView text) {
    return wholeNumber<Whole>(wantedNumber(text));
}

}  // namespace

QString numberText(double number) {
    QString text;
    appendNumber(text, number);
    return text;
}

void appendNumber(QString& out, double number) {
    plain::NumberBuffer buffer;
    out += QLatin1StringView(plain::numberText(number, buffer));
}

double Val(QStringView text) {
    Ascii ascii = numberCharacters(text);
    const char* end = nullptr;
    return leadingNumber(ascii, end);
}

bool readNumber(QStringView text, double& number) {
    const QStringView trimmed = text.trimmed();
    if (trimmed.isEmpty()) return false;
    for (const QChar c : trimmed) {
        if (isBlank(c) || c.unicode() > 0x7E) return false;
    }
    Ascii ascii = numberCharacters(trimmed);
    const char* end = nullptr;
    number = leadingNumber(ascii, end);
    return end == ascii.end();
}

double wantedNumber(QStringView text) {
    double number = 0;
    if (readNumber(text, number)) return number;
    const QStringView shown = text.trimmed().left(80);
    throw RunTimeError(ErrorNumber::TypeMismatch, shown.isEmpty() ? u"\"\""_s : shown.toString());
}

qint16 wholeNumber16(QStringView text) {
    return wholeNumber<qint16>(text);
}
qint32 wholeNumber32(QStringView text) {
    return wholeNumber<qint32>(text);
}
qint16 wholeNumber16(double number) {
    return wholeNumber<qint16>(number);
}
qint32 wholeNumber32(double number) {
    return wholeNumber<qint32>(number);
}

}  // namespace zelvor
