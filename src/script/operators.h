#pragma once

#include "base/value.h"

namespace zelvor::script {

// The operators on values. Null spreads unless said otherwise; a text that is no number where one is needed throws 13
// with the text, an array always does.

Value power(const Value& left, const Value& right);
// 11 when the divisor is zero.
Value quotient(const Value& left, const Value& right);
Value product(const Value& left, const Value& right);
// Operands rounded to whole numbers of 32 bits, halves to even; 6 when they do not fit, 11 for a zero divisor.
Value wholeQuotient(const Value& left, const Value& right);
Value modulo(const Value& left, const Value& right);
// Joins two texts, adds when one side is a number.
Value sum(const Value& left, const Value& right);
Value difference(const Value& left, const Value& right);
// Joins the texts of both; Null joins as the empty text, Null & Null is Null.
Value join(const Value& left, const Value& right);
Value negated(const Value& operand);
Value unchangedNumber(const Value& operand);

Value equal(const Value& left, const Value& right);
Value unequal(const Value& left, const Value& right);
Value less(const Value& left, const Value& right);
Value greater(const Value& left, const Value& right);
Value lessOrEqual(const Value& left, const Value& right);
Value greaterOrEqual(const Value& left, const Value& right);

// On two Booleans logic, else on the bits of whole numbers. And, Or and Imp with Null have a value where the other
// side decides.
Value logicalNot(const Value& operand);
Value logicalAnd(const Value& left, const Value& right);
Value logicalOr(const Value& left, const Value& right);
Value logicalXor(const Value& left, const Value& right);
Value logicalEqv(const Value& left, const Value& right);
Value logicalImp(const Value& left, const Value& right);

// A whole number in the smallest type that holds it: Integer up to 32 bits, then Double.
Value wholeValue(qint64 number);
// Throws 6 when the number is none or infinite.
Value finite(double number);
// "True" and "False" in any case and numbers; throws 94 for Null, 13 for anything else.
bool truthOf(const Value& value);
// As Value::number(), the refused text in the error's text.
double numberOf(const Value& value);

}  // namespace zelvor::script
