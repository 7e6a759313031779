#include "script/function_table.h"

#include <algorithm>
#include <array>

#include "script/functions.h"
#include "script/lexer.h"

using namespace Qt::StringLiterals;

namespace zelvor::script {

namespace {

constexpr auto kSpreads = Function::NullRule::Spreads;
constexpr auto kOwnRule = Function::NullRule::OwnRule;

// Name, parameters, least and most arguments, what Null does, handler, meaning.
constexpr std::array kFunctions{
    Function{u"Abs", u"number", 1, 1, kSpreads, functions::absolute, u"The number without its sign."},
    Function{u"Array", u"[value, ...]", 0, Function::kAny, kOwnRule, functions::array, u"An array of the values."},
    Function{u"Asc", u"text", 1, 1, kOwnRule, functions::asc,
             u"The first character's code, 0 to 255 (windows-1253 above 127)."},
    Function{u"AscB", u"text", 1, 1, kOwnRule, functions::ascB, u"The first byte of the text, see below."},
    Function{u"AscW", u"text", 1, 1, kOwnRule, functions::ascW, u"The first character's Unicode (UTF-16) code."},
    Function{u"Atn", u"number", 1, 1, kOwnRule, functions::arcTangent, u"The arc tangent in radians."},
    Function{u"CBool", u"value", 1, 1, kOwnRule, functions::cBool, u"True for a number other than 0 and for \"True\"."},
    Function{u"CByte", u"value", 1, 1, kOwnRule, functions::cByte, u"Rounded to a whole number, 0 to 255."},
    Function{u"CCur", u"value", 1, 1, kOwnRule, functions::cCur, u"Rounded to four decimals."},
    Function{u"CDate", u"value", 1, 1, kOwnRule, functions::cDate, u"A date from a text or a serial number."},
    Function{u"CDbl", u"value", 1, 1, kOwnRule, functions::cDbl, u"A number."},
    Function{u"Chr", u"code", 1, 1, kOwnRule, functions::chr,
             u"The character of a code, 0 to 255 (windows-1253 above 127)."},
    Function{u"ChrB", u"code", 1, 1, kOwnRule, functions::chrB, u"The character of a byte, 0 to 255."},
    Function{u"ChrW", u"code", 1, 1, kOwnRule, functions::chrW, u"The character of a Unicode (UTF-16) code."},
    Function{u"CInt", u"value", 1, 1, kOwnRule, functions::cInt,
             u"Rounded to a whole number of 16 bits, halves to even."},
    Function{u"CLng", u"value", 1, 1, kOwnRule, functions::cLng,
             u"Rounded to a whole number of 32 bits, halves to even."},
    Function{u"Cos", u"number", 1, 1, kOwnRule, functions::cosine, u"The cosine of an angle in radians."},
    Function{u"CSng", u"value", 1, 1, kOwnRule, functions::cSng, u"A number of single precision (seven digits)."},
    Function{u"CStr", u"value", 1, 1, kOwnRule, functions::cStr, u"The value as text."},
    Function{u"Date", u"", 0, 0, kOwnRule, functions::date, u"Today's date."},
    Function{u"DateAdd", u"interval, count, date", 3, 3, kOwnRule, functions::dateAdd,
             u"The date that many intervals later; at a month's end it stays in the month."},
    Function{u"DateDiff", u"interval, from, to[, firstDay[, firstWeek]]", 3, 5, kOwnRule, functions::dateDiff,
             u"How many times the interval's boundary lies between two dates."},
    Function{u"DatePart", u"interval, date[, firstDay[, firstWeek]]", 2, 4, kOwnRule, functions::datePart,
             u"A part of a date as a number."},
    Function{u"DateSerial", u"year, month, day", 3, 3, kOwnRule, functions::dateSerial,
             u"The date; months and days beyond their ends carry over."},
    Function{u"DateValue", u"date", 1, 1, kSpreads, functions::dateValue, u"The date without its time."},
    Function{u"Day", u"date", 1, 1, kSpreads, functions::day, u"The day of the month."},
    Function{u"Escape", u"text", 1, 1, kOwnRule, functions::escape,
             u"All but plain letters, digits and \"@*_+-./\" as \"%27\" or \"%u03A9\"."},
    Function{u"Eval", u"expression", 1, 1, kOwnRule, functions::eval,
             u"The value of the expression in a text; any other value itself."},
    Function{u"Exp", u"number", 1, 1, kOwnRule, functions::exponential, u"e to the power of the number."},
    Function{u"Filter", u"array, text[, include[, compare]]", 2, 4, kOwnRule, functions::filter,
             u"The elements that contain the text, or with include False those that do not."},
    Function{u"Fix", u"number", 1, 1, kSpreads, functions::fix, u"The whole part, cut towards 0."},
    Function{u"Format", u"value[, pattern[, firstDay[, firstWeek]]]", 1, 4, kOwnRule, functions::format,
             u"The value by a pattern, see below."},
    Function{u"FormatCurrency", u"number[, digits[, leadingZero[, brackets[, groups]]]]", 1, 5, kOwnRule,
             functions::formatCurrency, u"As \"$1,234.50\", negative as \"($1,234.50)\"."},
    Function{u"FormatDateTime", u"date[, kind]", 1, 2, kOwnRule, functions::formatDateTime,
             u"0 date and time, 1 \"Saturday, November 21, 2026\", 2 date, 3 time, 4 hours and minutes."},
    Function{u"FormatNumber", u"number[, digits[, leadingZero[, brackets[, groups]]]]", 1, 5, kOwnRule,
             functions::formatNumber, u"As \"1,234.50\"; the choices are -1 yes, 0 no, -2 as usual."},
    Function{u"FormatPercent", u"number[, digits[, leadingZero[, brackets[, groups]]]]", 1, 5, kOwnRule,
             functions::formatPercent, u"A hundred times the number, as \"12.50%\"."},
    Function{u"Hex", u"number", 1, 1, kSpreads, functions::hex, u"The whole number in hexadecimal digits."},
    Function{u"Hour", u"date", 1, 1, kSpreads, functions::hour, u"The hour, 0 to 23."},
    Function{u"IIf", u"condition, whenTrue, whenFalse", 3, 3, kOwnRule, functions::iif,
             u"One of the two values; both are computed."},
    Function{u"InStr", u"[start, ]text, wanted[, compare]", 2, 4, kOwnRule, functions::inStr,
             u"Where the wanted text begins, from 1; 0 when nowhere. With compare the start must be given."},
    Function{u"InStrB", u"[start, ]text, wanted[, compare]", 2, 4, kOwnRule, functions::inStrB,
             u"As InStr in bytes; case always counts."},
    Function{u"InStrRev", u"text, wanted[, start[, compare]]", 2, 4, kOwnRule, functions::inStrRev,
             u"As InStr, the last place that ends at or before start."},
    Function{u"Int", u"number", 1, 1, kSpreads, functions::integer, u"The whole number at or below the number."},
    Function{u"IsArray", u"value", 1, 1, kOwnRule, functions::isArray, u"True for an array."},
    Function{u"IsDate", u"value", 1, 1, kOwnRule, functions::isDate,
             u"True for a date and for a text that reads as one."},
    Function{u"IsEmpty", u"value", 1, 1, kOwnRule, functions::isEmpty, u"True for Empty."},
    Function{u"IsNull", u"value", 1, 1, kOwnRule, functions::isNull, u"True for Null."},
    Function{u"IsNumeric", u"value", 1, 1, kOwnRule, functions::isNumeric,
             u"True for a number and for a text that reads as one."},
    Function{u"IsObject", u"value", 1, 1, kOwnRule, functions::isObject, u"False: there are no objects."},
    Function{u"Join", u"array[, delimiter]", 1, 2, kOwnRule, functions::joined,
             u"The elements as one text, the delimiter (a blank) between."},
    Function{u"LBound", u"array[, dimension]", 1, 2, kOwnRule, functions::lBound, u"The first index of an array: 0."},
    Function{u"LCase", u"text", 1, 1, kSpreads, functions::lCase, u"The text in lower case."},
    Function{u"Left", u"text, length", 2, 2, kSpreads, functions::left, u"The first characters."},
    Function{u"LeftB", u"text, bytes", 2, 2, kSpreads, functions::leftB, u"The first bytes."},
    Function{u"Len", u"text", 1, 1, kSpreads, functions::len, u"The number of characters (UTF-16 units)."},
    Function{u"LenB", u"text", 1, 1, kSpreads, functions::lenB, u"The number of bytes: two a character."},
    Function{u"Log", u"number", 1, 1, kOwnRule, functions::logarithm, u"The natural logarithm."},
    Function{u"LTrim", u"text", 1, 1, kSpreads, functions::lTrim, u"The text without leading blanks."},
    Function{u"Mid", u"text, start[, length]", 2, 3, kSpreads, functions::mid,
             u"The characters from start (from 1) on."},
    Function{u"MidB", u"text, start[, bytes]", 2, 3, kSpreads, functions::midB, u"The bytes from start (from 1) on."},
    Function{u"Minute", u"date", 1, 1, kSpreads, functions::minute, u"The minute, 0 to 59."},
    Function{u"Month", u"date", 1, 1, kSpreads, functions::month, u"The month, 1 to 12."},
    Function{u"MonthName", u"month[, abbreviated]", 1, 2, kOwnRule, functions::monthName,
             u"The month's English name, abbreviated to three letters."},
    Function{u"Now", u"", 0, 0, kOwnRule, functions::now, u"Date and time."},
    Function{u"Oct", u"number", 1, 1, kSpreads, functions::oct, u"The whole number in octal digits."},
    Function{u"Replace", u"text, wanted, replacement[, start[, count[, compare]]]", 3, 6, kOwnRule, functions::replace,
             u"The text from start on with the wanted text replaced, count times at most."},
    Function{u"RGB", u"red, green, blue", 3, 3, kOwnRule, functions::rgb,
             u"The colour's number: red + 256 * green + 65536 * blue."},
    Function{u"Right", u"text, length", 2, 2, kSpreads, functions::right, u"The last characters."},
    Function{u"RightB", u"text, bytes", 2, 2, kSpreads, functions::rightB, u"The last bytes."},
    Function{u"Rnd", u"[number]", 0, 1, kOwnRule, functions::rnd,
             u"A random number from 0 to below 1; below 0 the same for each number, 0 the last one again."},
    Function{u"Round", u"number[, decimals]", 1, 2, kSpreads, functions::round,
             u"Rounded to decimals (0), halves to even."},
    Function{u"RTrim", u"text", 1, 1, kSpreads, functions::rTrim, u"The text without trailing blanks."},
    Function{u"Second", u"date", 1, 1, kSpreads, functions::second, u"The second, 0 to 59."},
    Function{u"Sgn", u"number", 1, 1, kOwnRule, functions::sign, u"-1, 0 or 1."},
    Function{u"Sin", u"number", 1, 1, kOwnRule, functions::sine, u"The sine of an angle in radians."},
    Function{u"Space", u"count", 1, 1, kOwnRule, functions::space, u"That many blanks."},
    Function{u"Split", u"text[, delimiter[, count[, compare]]]", 1, 4, kOwnRule, functions::split,
             u"The pieces between the delimiters (blanks) as an array, count pieces at most."},
    Function{u"Sqr", u"number", 1, 1, kOwnRule, functions::squareRoot, u"The square root."},
    Function{u"StrComp", u"left, right[, compare]", 2, 3, kOwnRule, functions::strComp,
             u"-1, 0 or 1 as the first text sorts before, with or behind the second."},
    Function{u"String", u"count, character", 2, 2, kOwnRule, functions::string,
             u"The character, given as a text or a code, that many times."},
    Function{u"StrReverse", u"text", 1, 1, kOwnRule, functions::strReverse, u"The text from its end to its start."},
    Function{u"Tan", u"number", 1, 1, kOwnRule, functions::tangent, u"The tangent of an angle in radians."},
    Function{u"Time", u"", 0, 0, kOwnRule, functions::time, u"The time of day."},
    Function{u"Timer", u"", 0, 0, kOwnRule, functions::timer, u"The seconds since midnight, with their fraction."},
    Function{u"TimeSerial", u"hour, minute, second", 3, 3, kOwnRule, functions::timeSerial,
             u"The time of day; parts beyond their ends carry over."},
    Function{u"TimeValue", u"date", 1, 1, kSpreads, functions::timeValue, u"The time without its date."},
    Function{u"Trim", u"text", 1, 1, kSpreads, functions::trim, u"The text without leading and trailing blanks."},
    Function{u"TypeName", u"value", 1, 1, kOwnRule, functions::typeName,
             u"Empty, Null, Boolean, Integer, Long, Double, Date, String or Variant()."},
    Function{u"UBound", u"array[, dimension]", 1, 2, kOwnRule, functions::uBound,
             u"The last index of an array; -1 when it has no element."},
    Function{u"UCase", u"text", 1, 1, kSpreads, functions::uCase, u"The text in upper case."},
    Function{u"Unescape", u"text", 1, 1, kOwnRule, functions::unescape, u"What Escape was given."},
    Function{u"VarType", u"value", 1, 1, kOwnRule, functions::varType,
             u"The type's number: 0, 1, 11, 2, 3, 5, 7, 8, 8204 in the order of TypeName's names."},
    Function{u"Weekday", u"date[, firstDay]", 1, 2, kSpreads, functions::weekday,
             u"The day of the week, 1 is firstDay (Sunday)."},
    Function{u"WeekdayName", u"weekday[, abbreviated[, firstDay]]", 1, 3, kOwnRule, functions::weekdayName,
             u"The weekday's English name, abbreviated to three letters."},
    Function{u"XmlText", u"text", 1, 1, kSpreads, functions::xmlText,
             u"The text for a template: what would break it as a character that looks alike, see below."},
    Function{u"Year", u"date", 1, 1, kSpreads, functions::year, u"The year."},
};

struct Constant {
    QStringView name;
    int number = 0;
    QStringView text;  // of a text constant; null for a number
};

constexpr std::array kConstants{
    Constant{u"vbCr", 0, u"\r"},
    Constant{u"vbLf", 0, u"\n"},
    Constant{u"vbCrLf", 0, u"\r\n"},
    Constant{u"vbNewLine", 0, u"\r\n"},
    Constant{u"vbTab", 0, u"\t"},
    Constant{u"vbFormFeed", 0, u"\f"},
    Constant{u"vbVerticalTab", 0, u"\v"},
    Constant{u"vbNullString", 0, u""},
    Constant{u"vbNullChar", 0, QStringView(u"\0", 1)},
    Constant{u"vbBinaryCompare", 0, {}},
    Constant{u"vbTextCompare", 1, {}},
    Constant{u"vbUseDefault", -2, {}},
    Constant{u"vbTrue", -1, {}},
    Constant{u"vbFalse", 0, {}},
    Constant{u"vbUseSystemDayOfWeek", 0, {}},
    Constant{u"vbSunday", 1, {}},
    Constant{u"vbMonday", 2, {}},
    Constant{u"vbTuesday", 3, {}},
    Constant{u"vbWednesday", 4, {}},
    Constant{u"vbThursday", 5, {}},
    Constant{u"vbFriday", 6, {}},
    Constant{u"vbSaturday", 7, {}},
    Constant{u"vbUseSystem", 0, {}},
    Constant{u"vbFirstJan1", 1, {}},
    Constant{u"vbFirstFourDays", 2, {}},
    Constant{u"vbFirstFullWeek", 3, {}},
    Constant{u"vbGeneralDate", 0, {}},
    Constant{u"vbLongDate", 1, {}},
    Constant{u"vbShortDate", 2, {}},
    Constant{u"vbLongTime", 3, {}},
    Constant{u"vbShortTime", 4, {}},
    Constant{u"vbBlack", 0, {}},
    Constant{u"vbRed", 0xFF, {}},
    Constant{u"vbGreen", 0xFF00, {}},
    Constant{u"vbYellow", 0xFFFF, {}},
    Constant{u"vbBlue", 0xFF0000, {}},
    Constant{u"vbMagenta", 0xFF00FF, {}},
    Constant{u"vbCyan", 0xFFFF00, {}},
    Constant{u"vbWhite", 0xFFFFFF, {}},
    Constant{u"vbEmpty", 0, {}},
    Constant{u"vbNull", 1, {}},
    Constant{u"vbInteger", 2, {}},
    Constant{u"vbLong", 3, {}},
    Constant{u"vbSingle", 4, {}},
    Constant{u"vbDouble", 5, {}},
    Constant{u"vbCurrency", 6, {}},
    Constant{u"vbDate", 7, {}},
    Constant{u"vbString", 8, {}},
    Constant{u"vbObject", 9, {}},
    Constant{u"vbError", 10, {}},
    Constant{u"vbBoolean", 11, {}},
    Constant{u"vbVariant", 12, {}},
    Constant{u"vbDataObject", 13, {}},
    Constant{u"vbDecimal", 14, {}},
    Constant{u"vbByte", 17, {}},
    Constant{u"vbArray", 8192, {}},
    Constant{u"vbOKOnly", 0, {}},
    Constant{u"vbOKCancel", 1, {}},
    Constant{u"vbAbortRetryIgnore", 2, {}},
    Constant{u"vbYesNoCancel", 3, {}},
    Constant{u"vbYesNo", 4, {}},
    Constant{u"vbRetryCancel", 5, {}},
    Constant{u"vbCritical", 16, {}},
    Constant{u"vbQuestion", 32, {}},
    Constant{u"vbExclamation", 48, {}},
    Constant{u"vbInformation", 64, {}},
    Constant{u"vbDefaultButton1", 0, {}},
    Constant{u"vbDefaultButton2", 256, {}},
    Constant{u"vbDefaultButton3", 512, {}},
    Constant{u"vbDefaultButton4", 768, {}},
    Constant{u"vbApplicationModal", 0, {}},
    Constant{u"vbSystemModal", 4096, {}},
    Constant{u"vbMsgBoxHelpButton", 16384, {}},
    Constant{u"vbMsgBoxSetForeground", 65536, {}},
    Constant{u"vbMsgBoxRight", 524288, {}},
    Constant{u"vbMsgBoxRtlReading", 1048576, {}},
    Constant{u"vbOK", 1, {}},
    Constant{u"vbCancel", 2, {}},
    Constant{u"vbAbort", 3, {}},
    Constant{u"vbRetry", 4, {}},
    Constant{u"vbIgnore", 5, {}},
    Constant{u"vbYes", 6, {}},
    Constant{u"vbNo", 7, {}},
    Constant{u"vbObjectError", -2147221504, {}},
};

constexpr bool isBefore(QStringView left, QStringView right) {
    return compareNames(left, right) < 0;
}

static_assert(std::is_sorted(kFunctions.begin(), kFunctions.end(),
                             [](const Function& left, const Function& right) {
                                 return isBefore(left.name, right.name);
                             }),
              "findFunction searches by halves");

// A cell of a Markdown table.
QString cell(QStringView text) {
    return text.toString().replace(u'|', u"\\|"_s);
}

}  // namespace

std::span<const Function> functionTable() {
    return kFunctions;
}

const Function* findFunction(QStringView name) {
    const auto* found =
        std::lower_bound(kFunctions.begin(), kFunctions.end(), name,
                         [](const Function& row, QStringView wanted) { return isBefore(row.name, wanted); });
    return found != kFunctions.end() && compareNames(found->name, name) == 0 ? found : nullptr;
}

std::optional<Value> findConstant(QStringView name) {
    for (const Constant& constant : kConstants) {
        if (compareNames(constant.name, name) != 0) continue;
        if (constant.text.isNull()) return Value(constant.number);
        return Value(constant.text.toString());
    }
    return std::nullopt;
}

QString functionReference() {
    QString list = u"| function | gives |\n| --- | --- |\n"_s;
    for (const Function& row : kFunctions) {
        list += u"| `"_s + row.name;
        if (row.most != 0) list += u'(' + row.parameters + u')';
        list += u"` | "_s + cell(row.meaning) + u" |\n"_s;
    }
    list += u"\nConstants:"_s;
    for (const Constant& constant : kConstants) list += u" `"_s + constant.name + u'`';
    return list + u'\n';
}

}  // namespace zelvor::script
