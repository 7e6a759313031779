#pragma once

#include <QString>
#include <QStringView>

#include "base/value.h"
#include "script/calendar.h"

namespace zelvor::script {

// A number by a pattern of digits: "0" a digit, "#" a digit where there is one, "." and ",", "%", "E+00", up to three
// sections "positive;negative;zero", quoted and backslashed characters as they are. Other characters stand where they
// stand, so "0:00" makes 1234 "12:34".
QString formatNumber(double number, QStringView pattern);

// A date by a pattern of "d" "m" "y" "h" "n" "s" "w" "q" "c" "t" and "AM/PM"; "m" behind "h" is minutes.
QString formatDate(Value::Date date, QStringView pattern, const WeekRule& rule);

// A text by a pattern: "@" a character or a blank, "&" a character or nothing, "<" lower case, ">" upper case, "!"
// fills from the left.
QString formatText(QStringView text, QStringView pattern);

enum class PatternKind { Literal, Number, Date, Text };
PatternKind kindOf(QStringView pattern);

// The pattern that a name such as "Fixed" or "Long Date" stands for; any other text itself.
QStringView namedPattern(QStringView name);

}  // namespace zelvor::script
