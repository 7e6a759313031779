#include <gtest/gtest.h>

#include "base/run_time_error.h"
#include "script/evaluator.h"
#include "support/cases.h"

using namespace Qt::StringLiterals;
using zelvor::RunTimeError;
using zelvor::Value;
using zelvor::script::Evaluator;

namespace {

void expectError(const QString& expression, const QString& expected) {
    try {
        const Value value = Evaluator().evaluate(expression);
        ADD_FAILURE() << qPrintable(expression) << " gave " << qPrintable(value.text());
    } catch (const RunTimeError& error) {
        const QString told = u"%1 at %2: %3"_s.arg(error.number()).arg(error.position()).arg(error.text());
        EXPECT_EQ(told.toStdString(), expected.toStdString()) << qPrintable(expression);
    }
}

// What cannot be read is reported before what cannot be computed, an error in a text that Eval evaluates where Eval
// stands.
TEST(EvaluatorErrors, HaveNumberTextAndPosition) {
    zelvor::test::forCases(
        expectError, "1 + -> 1002 at 4: Syntax error", "1 2 -> 1002 at 3: Syntax error",
        "() -> 1002 at 2: Syntax error", "a ? b -> 1002 at 3: Syntax error", "@X -> 1002 at 1: Syntax error",
        "a.b -> 1002 at 2: Syntax error", "x = 1 : y -> 1002 at 7: Syntax error",
        "#2026-02-30# -> 1002 at 1: Syntax error", "& -> 1002 at 1: Syntax error", "(1+2 -> 1006 at 5: Expected ')'",
        "Left('abc',2 -> 1006 at 13: Expected ')'", "12abc -> 1031 at 1: Invalid number",
        "1 + 1e -> 1031 at 5: Invalid number", "1.2.3 -> 1031 at 1: Invalid number",
        "1e999 -> 1031 at 1: Invalid number", "&HG -> 1031 at 1: Invalid number",
        "'a' & \"b -> 1033 at 7: Unterminated string constant", "1/0 -> 11 at 2: Division by zero",
        "5 Mod 0.4 -> 11 at 3: Division by zero", "1 + 3000000000 \\ 2 -> 6 at 16: Overflow",
        "CInt(32768) -> 6 at 1: Overflow: 'CInt'", "1 + CLng('3e9') -> 6 at 5: Overflow: 'CLng'",
        "#9999-12-31# + 1 -> 6 at 14: Overflow", "(-8)^0.5 -> 5 at 5: Invalid procedure call or argument",
        "Sqr(-1) -> 5 at 1: Invalid procedure call or argument: 'Sqr'",
        "Log(0) -> 5 at 1: Invalid procedure call or argument: 'Log'",
        "DateAdd('d',2147483647,Now) -> 5 at 1: Invalid procedure call or argument: 'DateAdd'",
        "DateDiff('s',Now,#100-01-01#) -> 6 at 1: Overflow: 'DateDiff'",
        "DateAdd('x',1,Now) -> 5 at 1: Invalid procedure call or argument: 'DateAdd'",
        "Mid('a',0) -> 5 at 1: Invalid procedure call or argument: 'Mid'",
        "Left('a',-1) -> 5 at 1: Invalid procedure call or argument: 'Left'",
        "chr(256) -> 5 at 1: Invalid procedure call or argument: 'Chr'",
        "MonthName(13) -> 5 at 1: Invalid procedure call or argument: 'MonthName'",
        "CByte(-1) -> 6 at 1: Overflow: 'CByte'", "1 + nobody(2) -> 13 at 5: Type mismatch: 'nobody'",
        "1 + 'abc' -> 13 at 3: Type mismatch: '[string: \"abc\"]'", "Array(1) + 1 -> 13 at 10: Type mismatch",
        "Left(Array(1), 1) -> 13 at 1: Type mismatch: 'Left'", "'ab'(0) -> 1002 at 5: Syntax error",
        "Trim('ab')(0) -> 13 at 11: Type mismatch", "Split('a,b',',')(2) -> 9 at 17: Subscript out of range",
        "Array(1)(0,0) -> 9 at 9: Subscript out of range",
        "UBound(Array(1),2) -> 9 at 1: Subscript out of range: 'UBound'",
        "CInt(Null) -> 94 at 1: Invalid use of Null: 'CInt'",
        "Left('a') -> 450 at 1: Wrong number of arguments or invalid property assignment: 'Left'",
        "Left(,1) -> 450 at 1: Wrong number of arguments or invalid property assignment: 'Left'",
        "Now(1) -> 450 at 1: Wrong number of arguments or invalid property assignment: 'Now'",
        "Space(100000000) -> 7 at 1: Out of memory: 'Space'", "1/0 + (2 -> 1006 at 9: Expected ')'",
        "1 + Eval('2 +') -> 1002 at 5: Syntax error");
}

int errorOf(const QString& expression) {
    try {
        static_cast<void>(Evaluator().evaluate(expression));
        return 0;
    } catch (const RunTimeError& error) {
        return error.number();
    }
}

TEST(EvaluatorErrors, DeepNestingIsRefusedAndLongTextIsNot) {
    constexpr int kDeep = 100'000;
    EXPECT_EQ(errorOf(QString(150, u'(') + u'1' + QString(150, u')')), 0);
    EXPECT_EQ(errorOf(QString(kDeep, u'(')), 28);
    EXPECT_EQ(errorOf(QString(kDeep, u'-') + u'1'), 28);
    EXPECT_EQ(errorOf(u"Not "_s.repeated(kDeep) + u'1'), 28);
    EXPECT_EQ(errorOf(u"2^-"_s.repeated(kDeep) + u'1'), 28);
    EXPECT_EQ(errorOf(u"Abs("_s.repeated(kDeep)), 28);
    EXPECT_EQ(errorOf(u"Array(1)"_s + u"(0)"_s.repeated(2)), 13);
    EXPECT_EQ(errorOf(u"1+"_s.repeated(kDeep) + u'1'), 0);
    // An expression that evaluates itself.
    const QString pattern = u"Eval(Replace(@,Chr(64),Chr(34)&@&Chr(34)))"_s;
    EXPECT_EQ(errorOf(QString(pattern).replace(u'@', u'"' + pattern + u'"')), 28);
}

// Texts that grow from step to step end in an error before they fill the memory.
TEST(EvaluatorErrors, TextsDoNotGrowWithoutEnd) {
    const QString million = u"Space(1000000)"_s;
    EXPECT_EQ(errorOf(u"Replace("_s + million + u",' ',"_s + million + u')'), 7);
    EXPECT_EQ(errorOf(u"Join(Split(Space(100)),"_s + million + u')'), 7);
    EXPECT_EQ(errorOf(QString(million + u'&').repeated(20) + million), 7);
}

}  // namespace
