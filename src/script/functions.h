#pragma once

#include "script/arguments.h"

// The handlers of the function table (function_table.cpp), which says what each of them does.
namespace zelvor::script::functions {

using Handler = Value(const Arguments&);

// text_functions.cpp
Handler asc, ascW, chr, chrW, filter, inStr, inStrRev, joined, lCase, left, len, lTrim, mid, replace, right, rTrim,
    space, split, strComp, string, strReverse, trim, uCase;

// byte_functions.cpp
Handler ascB, chrB, inStrB, leftB, lenB, midB, rightB;

// escape_functions.cpp
Handler escape, unescape, xmlText;

// number_functions.cpp
Handler absolute, arcTangent, cosine, exponential, fix, hex, integer, logarithm, oct, rgb, rnd, round, sign, sine,
    squareRoot, tangent;

// date_functions.cpp
Handler date, dateAdd, dateDiff, datePart, dateSerial, dateValue, day, hour, minute, month, monthName, now, second,
    time, timer, timeSerial, timeValue, weekday, weekdayName, year;

// value_functions.cpp
Handler array, cBool, cByte, cCur, cDate, cDbl, cInt, cLng, cSng, cStr, eval, iif, isArray, isDate, isEmpty, isNull,
    isNumeric, isObject, lBound, typeName, uBound, varType;

// format_functions.cpp
Handler format, formatCurrency, formatDateTime, formatNumber, formatPercent;

}  // namespace zelvor::script::functions
