#include "script/evaluator.h"

#include <gtest/gtest.h>

#include <QFile>

#include "base/run_time_error.h"
#include "script/function_table.h"
#include "support/cases.h"

using namespace Qt::StringLiterals;
using zelvor::RunTimeError;
using zelvor::Value;
using zelvor::script::Evaluator;
using zelvor::test::forCases;

namespace {

// A value as text; Null as "Null", a text between bars, an array between brackets.
QString shown(const Value& value) {
    switch (value.kind()) {
        case Value::Kind::Null:
            return u"Null"_s;
        case Value::Kind::Empty:
            return u"Empty"_s;
        case Value::Kind::Text:
            return u'|' + value.text() + u'|';
        case Value::Kind::Array: {
            QStringList elements;
            for (const Value& element : **value.as<Value::Array>()) elements += shown(element);
            return u'[' + elements.join(u", "_s) + u']';
        }
        default:
            return value.text();
    }
}

const Evaluator kEvaluator([] { return QDateTime(QDate(2026, 11, 21), QTime(20, 31, 7, 250)); }, [] { return 0.25; });

void expectValue(const QString& expression, const QString& value) {
    try {
        EXPECT_EQ(shown(kEvaluator.evaluate(expression)).toStdString(), value.toStdString()) << qPrintable(expression);
    } catch (const RunTimeError& error) {
        ADD_FAILURE() << qPrintable(expression) << ": error " << error.number() << ' ' << qPrintable(error.text());
    }
}

TEST(Evaluator, Literals) {
    forCases(expectValue, " -> Empty", "Array(42, 1.50, .5, 5., 2e3, 1E+15) -> [42, 1.5, 0.5, 5, 2000, 1E+15]",
             "Array(3000000000, &HFF, &HFFFF, &HFFFF&, &HFFFFFFFF) -> [3000000000, 255, -1, 65535, -1]",
             "Array(&O17, &17, \"a\"\"b\", 'qwerty', 'it''s') -> [15, 15, |a\"b|, |qwerty|, |it's|]",
             "'say \"x\"' -> |say \"x\"|", "'' -> ||",
             "Array('Ωμέγα', #2026-11-21#, #2026-11-21 20:31:07#) -> [|Ωμέγα|, 2026-11-21, 2026-11-21 20:31:07]",
             "Array(#11/21/2026 8:31 PM#, #21 November 2026#) -> [2026-11-21 20:31:00, 2026-11-21]",
             "Array(#12:00 AM#, true, FALSE, Null) -> [00:00:00, True, False, Null]", "Empty -> Empty",
             "nobody -> Empty", "Array(nobody + 1, 'a' & vbCrLf = 'a' & Chr(13) & Chr(10)) -> [1, True]");
}

TEST(Evaluator, OperatorLevels) {
    forCases(expectValue, "Array(3>2, 7 mod 4, mid('qwerty',1,3)='qwe', 7mod 4, 1Eqv 1) -> [True, 3, True, 3, -1]",
             "Array(2+3*4, (2+3)*4, 2^3^2, -2^2, 2^-1, 2*-3) -> [14, 20, 64, -4, 0.5, -6]",
             "Array(1 - -1, +5, 12/4*3, 2*7\\3, 12\\2*3, 13 Mod 7\\2) -> [2, 5, 9, 4, 2, 1]",
             "Array(5 + 7 Mod 4, 10-3-2, 1+2&3+4, 'a'&1=\"a1\", 1<2=True) -> [8, 5, |37|, True, True]",
             "Array(Not 1=2, Not True Or True, True Or False And False) -> [True, True, True]",
             "Array(True Xor True Or True, False Eqv True Xor True) -> [False, True]",
             "Array(True Imp False Eqv False, \"a\"&Hour(Now)) -> [True, |a20|]");
}

TEST(Evaluator, Arithmetic) {
    forCases(expectValue, "Array(1/3, 0.1+0.2, 7\\2, -7\\2, 2.5\\1, 3.5\\1) -> [0.333333333333333, 0.3, 3, -3, 2, 4]",
             "Array(-7 Mod 3, 7.5 Mod 3, -2147483648\\-1, TypeName(32767)) -> [-1, 2, 2147483648, |Integer|]",
             "Array(TypeName(32767+1), TypeName(2147483647+1)) -> [|Long|, |Double|]",
             "Array(2147483647*2147483647, TypeName(4/2), True+True) -> [4.61168601413242E+18, |Double|, -2]",
             "'12'+5 -> 17", "'12'+'5' -> |125|", "Array('3'*'4', -'5') -> [12, -5]", "12&5 -> |125|",
             "Empty+'x' -> |x|", "Empty&'' -> ||", "Array(Empty+Empty, Null+1) -> [0, Null]", "Null&'x' -> |x|",
             "Array(Null&Null, -Null, #2026-12-31#+1) -> [Null, Null, 2027-01-01]",
             "Array(#2026-01-01#-#2025-12-25#, #10:00#+0.5) -> [7, 22:00:00]");
}

TEST(Evaluator, ComparisonAndLogic) {
    forCases(expectValue, "Array(10='10', 9<'10', '9'<'10', '10'>9, 5='abc') -> [True, True, False, True, False]",
             "Array(5<'abc', 'abc'<5, 'a'='A', 'a'<>'b', 1=<1) -> [True, False, False, True, True]",
             "Array(5='7E999', '7E999'>5, '7E999'=Empty) -> [False, True, False]",
             "Array(2=>3, 1<=1, 2>=3, Empty='', Empty=0, ''=0) -> [False, True, False, True, True, False]",
             "Array(Null=Null, True=-1, #2026-11-21#='2026-11-21') -> [Null, True, True]",
             "Array(#2026-11-21#<#2026-11-22#, 6 And 3, 6 Or 3, 6 Xor 3, 6 Eqv 3) -> [True, 2, 7, 5, -6]",
             "Array(6 Imp 3, Not 0, 2.5 And 3, True And 'True', True And 3) -> [-5, -1, 2, True, 3]",
             "Array(False And Null, True And Null, Null Or True, Null Or 0) -> [False, Null, True, Null]",
             "Array(Null Xor 1, False Imp Null, Null Imp False, Not Null) -> [Null, True, Null, Null]");
}

TEST(Evaluator, TextFunctions) {
    forCases(expectValue, "Array(Asc('A'), Asc('Ω'), Chr(217), AscW('Ω'), ChrW(937)) -> [65, 217, |Ω|, 937, |Ω|]",
             "Filter(Split('ab,bc,cd', ','), 'b') -> [|ab|, |bc|]", "Filter(Array('ab','BC'), 'b', False, 1) -> []",
             "Array(InStr('abcabc','c'), InStr(4,'abcabc','c'), InStr(1,'abc','B',1)) -> [3, 6, 2]",
             "Array(InStr('abc',''), InStr('',''), InStr('abc',Null)) -> [1, 0, Null]",
             "Array(InStrRev('abcabc','c'), InStrRev('abcabc','c',5), InStrRev('abc','bc',2)) -> [6, 3, 0]",
             "Array(Join(Array(1,'b',True),'-'), Join(Array('a','b'))) -> [|1-b-True|, |a b|]",
             "Array(LCase('ΑΒC'), UCase('abc')) -> [|αβc|, |ABC|]",
             "Array(Left('abc',2), Left('abc',9), Left(Null,1), Right('abc',2)) -> [|ab|, |abc|, Null, |bc|]",
             "Mid('abc',2) -> |bc|", "Mid('abc',9) -> ||", "Array(Len('abc'), Len(1234), Len(Null)) -> [3, 4, Null]",
             "'['&LTrim('  a ')&']' -> |[a ]|", "'['&RTrim('  a ')&']' -> |[  a]|", "'['&Trim('  a ')&']' -> |[a]|",
             "Array(Replace('a-b-c','-',''), Replace('aXbx','x','.',1,-1,1)) -> [|abc|, |a.b.|]",
             "Array(Replace('aaaa','a','b',2,2), Replace('abc','b','x',,1)) -> [|bba|, |axc|]",
             "Array(Space(2)&'x', String(3,'*'), String(2,65)) -> [|  x|, |***|, |AA|]",
             "Split(\"a,b\", \",\")(1) -> |b|", "UBound(Split('',',')) -> -1", "Split('a b c',' ',2) -> [|a|, |b c|]",
             "Array(Array(1,2),3)(0)(1) -> 2",
             "Array(StrComp('a','B'), StrComp('a','A',1), StrReverse('abc')) -> [1, 0, |cba|]");
}

TEST(Evaluator, NumberAndValueFunctions) {
    forCases(
        expectValue, "Array(Abs(-3), Abs('-2.5'), Atn(1)*4, Cos(0)+Sin(0)+Tan(0)) -> [3, 2.5, 3.14159265358979, 1]",
        "Array(Exp(1), Log(Exp(2)), Sqr(2)) -> [2.71828182845905, 2, 1.4142135623731]",
        "Array(Int(-2.5), Fix(-2.5), Int(Null)) -> [-3, -2, Null]",
        "Array(Round(2.5), Round(3.5), Round(2.675,2), Round(-1.25,1)) -> [2, 4, 2.68, -1.2]",
        "Sgn(-4)&Sgn(0)&Sgn(9) -> |-101|",
        "Array(Hex(255), Hex(-1), Hex(-40000), Oct(8)) -> [|FF|, |FFFF|, |FFFF63C0|, |10|]",
        "Array(RGB(200,0,0), RGB(0,300,1)) -> [200, 130816]",
        "Array(Rnd, Rnd(-3)=Rnd(-3), Rnd(-3)=Rnd(0)) -> [0.25, True, True]",
        "Array(CInt(2.5), CInt('3.5'), CLng(-2147483648), CByte(255)) -> [2, 4, -2147483648, 255]",
        "Array(CBool('true'), CBool(0), CCur(1.23455), CSng(1/3)) -> [True, False, 1.2346, 0.3333333]",
        "Array(CDbl('1e3'), CInt('&HFF')) -> [1000, 255]", "CStr(1.5)&CStr(True) -> |1.5True|",
        "Array(CDate('2026-11-21T20:31:07'), CDate(1.5)) -> [2026-11-21 20:31:07, 1899-12-31 12:00:00]",
        "Array(IsArray(Array()), IsDate('2026-02-30'), IsDate('Nov 21')) -> [True, False, True]",
        "Array(IsDate('3.14'), IsDate('99999999999999999999-1-1')) -> [False, False]",
        "Array(IsEmpty(nobody), IsNull(Null+1), IsNumeric('1e5')) -> [True, True, True]",
        "Array(IsNumeric('1e999'), IsNumeric('12a')) -> [False, False]", "LBound(Array(1))&UBound(Array(1,2)) -> |01|",
        "Array(TypeName(Array()), TypeName(Now)&TypeName('')) -> [|Variant()|, |DateString|]",
        "Array(VarType(1)&VarType(70000)&VarType(1.5), VarType(Array(1))) -> [|235|, 8204]",
        "Array(IIf(1>2,'yes','no'), IIf(Null,1,2), Eval('1+'&'2'), Eval(7)) -> [|no|, 2, 3, 7]");
}

TEST(Evaluator, DateFunctions) {
    forCases(expectValue, "Now -> 2026-11-21 20:31:07", "Date -> 2026-11-21", "Time() -> 20:31:07", "Timer -> 73867.25",
             "Year(Now)&Month(Now)&Day(Now) -> |20261121|", "Hour(Now)&':'&Minute(Now)&':'&Second(Now) -> |20:31:7|",
             "Year(Null) -> Null",
             "Array(DateAdd('m',1,#2026-01-31#), DateAdd('yyyy',-1,'2024-02-29')) -> [2026-02-28, 2023-02-28]",
             "DateAdd('h',5,#2026-11-21 20:00#) -> 2026-11-22 01:00:00",
             "DateAdd('s',-1,#1899-12-30#) -> 1899-12-29 23:59:59", "DateAdd('ww',1,#2026-11-21#) -> 2026-11-28",
             "Array(DateDiff('d',#2026-11-21#,#2026-12-25#), DateDiff('h',#10:59#,#11:00#)) -> [34, 1]",
             "DateDiff('m',#2026-01-31#,#2026-02-01#) -> 1", "DateDiff('ww',#2026-11-21#,#2026-11-22#) -> 1",
             "DateDiff('d',Now,Null) -> Null", "DateDiff('ww',#2026-11-21#,#2026-11-22#,2) -> 0",
             "DateDiff('q',#2025-12-31#,#2026-01-01#) -> 1",
             "Array(DatePart('ww',#2026-01-04#), DatePart('ww',#2027-01-01#,2,2)) -> [2, 53]",
             "Array(DatePart('ww',#2024-12-30#,2,2), DatePart('ww',#2027-01-01#,2,3)) -> [1, 52]",
             "DatePart('y',#2026-02-01#) -> 32", "DatePart('q',Now) -> 4",
             "Array(DateSerial(2026,14,0), DateSerial(99,1,1)) -> [2027-01-31, 1999-01-01]",
             "Array(DateValue(Now), DateValue('Feb 3')) -> [2026-11-21, 2026-02-03]",
             "DateValue('31/12/2026') -> 2026-12-31",
             "Array(TimeSerial(12,90,0), TimeValue('8:05 pm')) -> [13:30:00, 20:05:00]",
             "Array(Weekday(#2026-11-21#), Weekday(#2026-11-21#,vbMonday)) -> [7, 6]", "Weekday(#1890-01-01#) -> 4",
             "Array(WeekdayName(1), WeekdayName(1,True,2)) -> [|Sunday|, |Mon|]",
             "MonthName(11)&MonthName(2,True) -> |NovemberFeb|");
}

TEST(Evaluator, Formats) {
    forCases(expectValue, "Array(FormatNumber(1234567.891), FormatNumber(0.145,2)) -> [|1,234,567.89|, |0.15|]",
             "Array(FormatNumber(0.5,1,0), FormatNumber(-1234,0,,-1,0)) -> [|.5|, |(1234)|]",
             "Array(FormatNumber(-0.001), FormatNumber(999.999,2)) -> [|0.00|, |1,000.00|]",
             "Array(FormatCurrency(-1234.5), FormatPercent(0.145,0)) -> [|($1,234.50)|, |15%|]",
             "FormatDateTime(Now) -> |2026-11-21 20:31:07|",
             "Array(FormatDateTime(Now,1), FormatDateTime(Now,4)) -> [|Saturday, November 21, 2026|, |20:31|]",
             "Array(Format(7,'000'), Format('7','000'), Format(1234,'0:00')) -> [|007|, |007|, |12:34|]",
             "Array(Format(5,'0:00'), Format(12.345,'##0.00'), Format(0.5,'##0.00')) -> [|0:05|, |12.35|, |0.50|]",
             "Array(Format(0.5,'#.##'), Format(1234567,'#,##0')) -> [|.5|, |1,234,567|]",
             "Array(Format(1234567,'0.0,,'), Format(0.256,'0.0%'), Format(-3,'0.0')) -> [|1.2|, |25.6%|, |-3.0|]",
             "Array(Format(-3,'0;(0);zero'), Format(0,'0;(0);\"zero\"')) -> [|(3)|, |zero|]",
             "Array(Format(12345,'0.00E+00'), Format(5,'0 \"pts\"')) -> [|1.23E+04|, |5 pts|]",
             "Array(Format(1/3,'Fixed'), Format(0,'Yes/No')) -> [|0.33|, |No|]",
             "Format(Now,'yyyy-mm-dd hh:mm:ss') -> |2026-11-21 20:31:07|",
             "Format(Now,'ddd d mmm yy h:nn AM/PM') -> |Sat 21 Nov 26 8:31 PM|",
             "Array(Format('2026-11-21','dddd'), Format(#10:05#,'Short Time')) -> [|Saturday|, |10:05|]",
             "Array(Format('abc','0.00'), Format('7E999','0'), Format('abc','>'), Format('ab','@@@')) -> "
             "[|abc|, |7E999|, |ABC|, | ab|]",
             "Array(Format('12345','@-@@'), Format(7,'\\#0'), Format(12345,'0,')) -> [|123-45|, |#7|, |12|]",
             "Format(Null,'0') -> ||", "Format(9.995,'0.00') -> |10.00|");
}

TEST(Evaluator, WhatBelongsToTheLanguageBesides) {
    forCases(
        expectValue, "Now <= Date + Time -> True",
        "Array(Len(UCase('Μαΐου')), LCase('ΌΣΟΣ'), UCase('straße')) -> [5, |όσοσ|, |STRAßE|]",
        "Array(CDbl('1,234.5'), CInt('-1,234'), IsNumeric('1,234,567'), '1,000'+1) -> [1234.5, -1234, True, 1001]",
        "Array(CDbl(FormatCurrency(-1234.5)), IsNumeric('1,5'), IsNumeric(',123'), IsNumeric('12,34,567')) -> "
        "[-1234.5, False, False, False]",
        "Array(vbRed, vbCyan, vbObjectError, vbArray, Len(vbNullChar), AscW(vbFormFeed)) -> [255, 16776960, "
        "-2147221504, 8192, 1, 12]",
        "Array(Round(12345678901234567)-12345678901234567, Round(123456789012.3456,3)-123456789012.346) -> [0, 0]",
        "Array(Round(0.1+0.2,1), Round(-0.145,2)) -> [0.3, -0.14]",
        "Array(Format(9.999,'0.00E+00'), Format(99.99,'00.0E+00'), Format(0.0099999,'0.0E-00')) -> [|1.00E+01|, "
        "|10.0E+01|, |1.0E-02|]",
        "Array(Escape('Ω a/b'''), Unescape('%u03A9%20%zz%'), Unescape(Escape('a%Ω;'))) -> [|%u03A9%20a/b%27|, |Ω "
        "%zz%|, |a%Ω;|]",
        "Array(LenB('abc'), LeftB('abc',3), RightB('abc',2), MidB('abc',3,2), InStrB('abc','b'), AscB(ChrB(200))) -> "
        "[6, |ab|, |c|, |b|, 3, 200]",
        "Array(IsObject(Empty), XmlText('O''N & \"<5>\" a|b#c;d\\\\')) -> [False, |O’N ＆ ”‹5›” a¦b＃c;d＼＼|]");
}

TEST(Evaluator, ReferenceIsUpToDate) {
    QFile file(QStringLiteral(TEST_DATA_DIR "/../../docs/script-expressions.md"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QString reference = QString::fromUtf8(file.readAll());
    EXPECT_TRUE(reference.contains(zelvor::script::functionReference()))
        << "docs/script-expressions.md should hold:\n"
        << zelvor::script::functionReference().toStdString();
}

// Each expression is evaluated for itself: neither the last random number nor a failed nesting is kept.
TEST(Evaluator, KeepsNothing) {
    int drawn = 0;
    const Evaluator evaluator([] { return QDateTime(); }, [&drawn] { return ++drawn / 10.0; });
    EXPECT_EQ(evaluator.evaluate(u"Rnd & Rnd(0) & Rnd"_s), Value(u"0.10.10.2"_s));
    EXPECT_EQ(evaluator.evaluate(u"Rnd(0)"_s), Value(0.3));
}

}  // namespace
