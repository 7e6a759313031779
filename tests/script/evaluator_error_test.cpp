#include <gtest/gtest.h>

#include <array>

#include "base/run_time_error.h"
#include "script/evaluator.h"

using namespace Qt::StringLiterals;
using zelvor::RunTimeError;
using zelvor::Value;
using zelvor::script::Evaluator;

namespace {

struct Failure {
    const char* expression;
    int number;
    int position;
    const char* text;
};

TEST(EvaluatorErrors, HaveNumberTextAndPosition) {
    static constexpr std::array kRows{
        Failure{"1 +", 1002, 4, "Syntax error"},
        Failure{"1 2", 1002, 3, "Syntax error"},
        Failure{"()", 1002, 2, "Syntax error"},
        Failure{"a ? b", 1002, 3, "Syntax error"},
        Failure{"@X", 1002, 1, "Syntax error"},
        Failure{"a.b", 1002, 2, "Syntax error"},
        Failure{"x = 1 : y", 1002, 7, "Syntax error"},
        Failure{"#2026-02-30#", 1002, 1, "Syntax error"},
        Failure{"&", 1002, 1, "Syntax error"},
        Failure{"(1+2", 1006, 5, "Expected ')'"},
        Failure{"Left('abc',2", 1006, 13, "Expected ')'"},
        Failure{"12abc", 1031, 1, "Invalid number"},
        Failure{"1 + 1e", 1031, 5, "Invalid number"},
        Failure{"1.2.3", 1031, 1, "Invalid number"},
        Failure{"1e999", 1031, 1, "Invalid number"},
        Failure{"&HG", 1031, 1, "Invalid number"},
        Failure{"'a' & \"b", 1033, 7, "Unterminated string constant"},
        Failure{"1/0", 11, 2, "Division by zero"},
        Failure{"5 Mod 0.4", 11, 3, "Division by zero"},
        Failure{"1 + 3000000000 \\ 2", 6, 16, "Overflow"},
        Failure{"CInt(32768)", 6, 1, "Overflow: 'CInt'"},
        Failure{"1 + CLng('3e9')", 6, 5, "Overflow: 'CLng'"},
        Failure{"#9999-12-31# + 1", 6, 14, "Overflow"},
        Failure{"(-8)^0.5", 5, 5, "Invalid procedure call or argument"},
        Failure{"Sqr(-1)", 5, 1, "Invalid procedure call or argument: 'Sqr'"},
        Failure{"DateAdd('d',2147483647,Now)", 5, 1, "Invalid procedure call or argument: 'DateAdd'"},
        Failure{"DateAdd('x',1,Now)", 5, 1, "Invalid procedure call or argument: 'DateAdd'"},
        Failure{"Mid('a',0)", 5, 1, "Invalid procedure call or argument: 'Mid'"},
        Failure{"chr(256)", 5, 1, "Invalid procedure call or argument: 'Chr'"},
        Failure{"MonthName(13)", 5, 1, "Invalid procedure call or argument: 'MonthName'"},
        Failure{"CByte(-1)", 6, 1, "Overflow: 'CByte'"},
        Failure{"1 + nobody(2)", 13, 5, "Type mismatch: 'nobody'"},
        Failure{"1 + 'abc'", 13, 3, "Type mismatch: '[string: \"abc\"]'"},
        Failure{"Array(1) + 1", 13, 10, "Type mismatch"},
        Failure{"Left(Array(1), 1)", 13, 1, "Type mismatch: 'Left'"},
        Failure{"'ab'(0)", 1002, 5, "Syntax error"},
        Failure{"Trim('ab')(0)", 13, 11, "Type mismatch"},
        Failure{"Split('a,b',',')(2)", 9, 17, "Subscript out of range"},
        Failure{"Array(1)(0,0)", 9, 9, "Subscript out of range"},
        Failure{"UBound(Array(1),2)", 9, 1, "Subscript out of range: 'UBound'"},
        Failure{"CInt(Null)", 94, 1, "Invalid use of Null: 'CInt'"},
        Failure{"Left('a')", 450, 1, "Wrong number of arguments or invalid property assignment: 'Left'"},
        Failure{"Left(,1)", 450, 1, "Wrong number of arguments or invalid property assignment: 'Left'"},
        Failure{"Now(1)", 450, 1, "Wrong number of arguments or invalid property assignment: 'Now'"},
        Failure{"Space(100000000)", 7, 1, "Out of memory: 'Space'"},
        // What cannot be read is reported before what cannot be computed.
        Failure{"1/0 + (2", 1006, 9, "Expected ')'"},
        // An error in a text that Eval evaluates is placed where Eval stands.
        Failure{"1 + Eval('2 +')", 1002, 5, "Syntax error"},
    };
    const Evaluator evaluator;
    for (const Failure& row : kRows) {
        try {
            const Value value = evaluator.evaluate(QString::fromUtf8(row.expression));
            ADD_FAILURE() << row.expression << " gave " << value.text().toStdString();
        } catch (const RunTimeError& error) {
            EXPECT_EQ(error.number(), row.number) << row.expression;
            EXPECT_EQ(error.position(), row.position) << row.expression;
            EXPECT_EQ(error.text().toStdString(), row.text) << row.expression;
        }
    }
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
