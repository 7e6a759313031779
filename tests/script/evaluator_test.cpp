#include "script/evaluator.h"

#include <gtest/gtest.h>

#include <QFile>
#include <array>

#include "base/run_time_error.h"
#include "script/function_table.h"

using namespace Qt::StringLiterals;
using zelvor::RunTimeError;
using zelvor::Value;
using zelvor::script::Evaluator;

namespace {

struct Row {
    const char* expression;
    const char* result;  // as text; Null as "Null", a text between bars, an array between brackets
};

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

Evaluator evaluatorAt(const QDateTime& when) {
    return {[when] { return when; }, [] { return 0.25; }};
}

const Evaluator kEvaluator = evaluatorAt({QDate(2026, 11, 21), QTime(20, 31, 7, 250)});

void check(std::span<const Row> rows) {
    for (const Row& row : rows) {
        try {
            const Value value = kEvaluator.evaluate(QString::fromUtf8(row.expression));
            EXPECT_EQ(shown(value).toStdString(), row.result) << row.expression;
        } catch (const RunTimeError& error) {
            ADD_FAILURE() << row.expression << ": error " << error.number() << ' ' << error.text().toStdString();
        }
    }
}

TEST(Evaluator, Literals) {
    static constexpr std::array kRows{
        Row{"", "Empty"},
        Row{"Array(42, 1.50, .5, 5., 2e3, 1E+15)", "[42, 1.5, 0.5, 5, 2000, 1E+15]"},
        Row{"Array(3000000000, &HFF, &HFFFF, &HFFFF&, &HFFFFFFFF)", "[3000000000, 255, -1, 65535, -1]"},
        Row{"Array(&O17, &17, \"a\"\"b\", 'qwerty', 'it''s')", "[15, 15, |a\"b|, |qwerty|, |it's|]"},
        Row{"'say \"x\"'", "|say \"x\"|"},
        Row{"''", "||"},
        Row{"Array('Ωμέγα', #2026-11-21#, #2026-11-21 20:31:07#)", "[|Ωμέγα|, 2026-11-21, 2026-11-21 20:31:07]"},
        Row{"Array(#11/21/2026 8:31 PM#, #21 November 2026#)", "[2026-11-21 20:31:00, 2026-11-21]"},
        Row{"Array(#12:00 AM#, true, FALSE, Null)", "[00:00:00, True, False, Null]"},
        Row{"Empty", "Empty"},
        Row{"nobody", "Empty"},
        Row{"Array(nobody + 1, 'a' & vbCrLf = 'a' & Chr(13) & Chr(10))", "[1, True]"},
    };
    check(kRows);
}

TEST(Evaluator, OperatorLevels) {
    static constexpr std::array kRows{
        Row{"Array(3>2, 7 mod 4, mid('qwerty',1,3)='qwe', 7mod 4, 1Eqv 1)", "[True, 3, True, 3, -1]"},
        Row{"Array(2+3*4, (2+3)*4, 2^3^2, -2^2, 2^-1, 2*-3)", "[14, 20, 64, -4, 0.5, -6]"},
        Row{"Array(1 - -1, +5, 12/4*3, 2*7\\3, 12\\2*3, 13 Mod 7\\2)", "[2, 5, 9, 4, 2, 1]"},
        Row{"Array(5 + 7 Mod 4, 10-3-2, 1+2&3+4, 'a'&1=\"a1\", 1<2=True)", "[8, 5, |37|, True, True]"},
        Row{"Array(Not 1=2, Not True Or True, True Or False And False)", "[True, True, True]"},
        Row{"Array(True Xor True Or True, False Eqv True Xor True)", "[False, True]"},
        Row{"Array(True Imp False Eqv False, \"a\"&Hour(Now))", "[True, |a20|]"},
    };
    check(kRows);
}

TEST(Evaluator, Arithmetic) {
    static constexpr std::array kRows{
        Row{"Array(1/3, 0.1+0.2, 7\\2, -7\\2, 2.5\\1, 3.5\\1)", "[0.333333333333333, 0.3, 3, -3, 2, 4]"},
        Row{"Array(-7 Mod 3, 7.5 Mod 3, -2147483648\\-1, TypeName(32767))", "[-1, 2, 2147483648, |Integer|]"},
        Row{"Array(TypeName(32767+1), TypeName(2147483647+1))", "[|Long|, |Double|]"},
        Row{"Array(2147483647*2147483647, TypeName(4/2), True+True)", "[4.61168601413242E+18, |Double|, -2]"},
        Row{"'12'+5", "17"},
        Row{"'12'+'5'", "|125|"},
        Row{"Array('3'*'4', -'5')", "[12, -5]"},
        Row{"12&5", "|125|"},
        Row{"Empty+'x'", "|x|"},
        Row{"Empty&''", "||"},
        Row{"Array(Empty+Empty, Null+1)", "[0, Null]"},
        Row{"Null&'x'", "|x|"},
        Row{"Array(Null&Null, -Null, #2026-12-31#+1)", "[Null, Null, 2027-01-01]"},
        Row{"Array(#2026-01-01#-#2025-12-25#, #10:00#+0.5)", "[7, 22:00:00]"},
    };
    check(kRows);
}

TEST(Evaluator, ComparisonAndLogic) {
    static constexpr std::array kRows{
        Row{"Array(10='10', 9<'10', '9'<'10', '10'>9, 5='abc')", "[True, True, False, True, False]"},
        Row{"Array(5<'abc', 'abc'<5, 'a'='A', 'a'<>'b', 1=<1)", "[True, False, False, True, True]"},
        Row{"Array(2=>3, 1<=1, 2>=3, Empty='', Empty=0, ''=0)", "[False, True, False, True, True, False]"},
        Row{"Array(Null=Null, True=-1, #2026-11-21#='2026-11-21')", "[Null, True, True]"},
        Row{"Array(#2026-11-21#<#2026-11-22#, 6 And 3, 6 Or 3, 6 Xor 3, 6 Eqv 3)", "[True, 2, 7, 5, -6]"},
        Row{"Array(6 Imp 3, Not 0, 2.5 And 3, True And 'True', True And 3)", "[-5, -1, 2, True, 3]"},
        Row{"Array(False And Null, True And Null, Null Or True, Null Or 0)", "[False, Null, True, Null]"},
        Row{"Array(Null Xor 1, False Imp Null, Null Imp False, Not Null)", "[Null, True, Null, Null]"},
    };
    check(kRows);
}

TEST(Evaluator, TextFunctions) {
    static constexpr std::array kRows{
        Row{"Array(Asc('A'), Asc('Ω'), Chr(217), AscW('Ω'), ChrW(937))", "[65, 217, |Ω|, 937, |Ω|]"},
        Row{"Filter(Split('ab,bc,cd', ','), 'b')", "[|ab|, |bc|]"},
        Row{"Filter(Array('ab','BC'), 'b', False, 1)", "[]"},
        Row{"Array(InStr('abcabc','c'), InStr(4,'abcabc','c'), InStr(1,'abc','B',1))", "[3, 6, 2]"},
        Row{"Array(InStr('abc',''), InStr('',''), InStr('abc',Null))", "[1, 0, Null]"},
        Row{"Array(InStrRev('abcabc','c'), InStrRev('abcabc','c',5), InStrRev('abc','bc',2))", "[6, 3, 0]"},
        Row{"Array(Join(Array(1,'b',True),'-'), Join(Array('a','b')))", "[|1-b-True|, |a b|]"},
        Row{"Array(LCase('ΑΒC'), UCase('abc'))", "[|αβc|, |ABC|]"},
        Row{"Array(Left('abc',2), Left('abc',9), Left(Null,1), Right('abc',2))", "[|ab|, |abc|, Null, |bc|]"},
        Row{"Mid('abc',2)", "|bc|"},
        Row{"Mid('abc',9)", "||"},
        Row{"Array(Len('abc'), Len(1234), Len(Null))", "[3, 4, Null]"},
        Row{"'['&LTrim('  a ')&']'", "|[a ]|"},
        Row{"'['&RTrim('  a ')&']'", "|[  a]|"},
        Row{"'['&Trim('  a ')&']'", "|[a]|"},
        Row{"Array(Replace('a-b-c','-',''), Replace('aXbx','x','.',1,-1,1))", "[|abc|, |a.b.|]"},
        Row{"Array(Replace('aaaa','a','b',2,2), Replace('abc','b','x',,1))", "[|bba|, |axc|]"},
        Row{"Array(Space(2)&'x', String(3,'*'), String(2,65))", "[|  x|, |***|, |AA|]"},
        Row{"Split(\"a,b\", \",\")(1)", "|b|"},
        Row{"UBound(Split('',','))", "-1"},
        Row{"Split('a b c',' ',2)", "[|a|, |b c|]"},
        Row{"Array(Array(1,2),3)(0)(1)", "2"},
        Row{"Array(StrComp('a','B'), StrComp('a','A',1), StrReverse('abc'))", "[1, 0, |cba|]"},
    };
    check(kRows);
}

TEST(Evaluator, NumberAndValueFunctions) {
    static constexpr std::array kRows{
        Row{"Array(Abs(-3), Abs('-2.5'), Atn(1)*4, Cos(0)+Sin(0)+Tan(0))", "[3, 2.5, 3.14159265358979, 1]"},
        Row{"Array(Exp(1), Log(Exp(2)), Sqr(2))", "[2.71828182845905, 2, 1.4142135623731]"},
        Row{"Array(Int(-2.5), Fix(-2.5), Int(Null))", "[-3, -2, Null]"},
        Row{"Array(Round(2.5), Round(3.5), Round(2.675,2), Round(-1.25,1))", "[2, 4, 2.68, -1.2]"},
        Row{"Sgn(-4)&Sgn(0)&Sgn(9)", "|-101|"},
        Row{"Array(Hex(255), Hex(-1), Hex(-40000), Oct(8))", "[|FF|, |FFFF|, |FFFF63C0|, |10|]"},
        Row{"Array(RGB(200,0,0), RGB(0,300,1))", "[200, 130816]"},
        Row{"Array(Rnd, Rnd(-3)=Rnd(-3), Rnd(-3)=Rnd(0))", "[0.25, True, True]"},
        Row{"Array(CInt(2.5), CInt('3.5'), CLng(-2147483648), CByte(255))", "[2, 4, -2147483648, 255]"},
        Row{"Array(CBool('true'), CBool(0), CCur(1.23455), CSng(1/3))", "[True, False, 1.2346, 0.3333333]"},
        Row{"CDbl('1e3')", "1000"},
        Row{"CStr(1.5)&CStr(True)", "|1.5True|"},
        Row{"Array(CDate('2026-11-21T20:31:07'), CDate(1.5))", "[2026-11-21 20:31:07, 1899-12-31 12:00:00]"},
        Row{"Array(IsArray(Array()), IsDate('2026-02-30'), IsDate('Nov 21'))", "[True, False, True]"},
        Row{"Array(IsDate('3.14'), IsDate('99999999999999999999-1-1'))", "[False, False]"},
        Row{"Array(IsEmpty(nobody), IsNull(Null+1), IsNumeric('1e5'))", "[True, True, True]"},
        Row{"Array(IsNumeric('1e999'), IsNumeric('12a'))", "[False, False]"},
        Row{"LBound(Array(1))&UBound(Array(1,2))", "|01|"},
        Row{"Array(TypeName(Array()), TypeName(Now)&TypeName(''))", "[|Variant()|, |DateString|]"},
        Row{"Array(VarType(1)&VarType(70000)&VarType(1.5), VarType(Array(1)))", "[|235|, 8204]"},
        Row{"Array(IIf(1>2,'yes','no'), IIf(Null,1,2), Eval('1+'&'2'), Eval(7))", "[|no|, 2, 3, 7]"},
    };
    check(kRows);
}

TEST(Evaluator, DateFunctions) {
    static constexpr std::array kRows{
        Row{"Now", "2026-11-21 20:31:07"},
        Row{"Date", "2026-11-21"},
        Row{"Time()", "20:31:07"},
        Row{"Timer", "73867.25"},
        Row{"Year(Now)&Month(Now)&Day(Now)", "|20261121|"},
        Row{"Hour(Now)&':'&Minute(Now)&':'&Second(Now)", "|20:31:7|"},
        Row{"Year(Null)", "Null"},
        Row{"Array(DateAdd('m',1,#2026-01-31#), DateAdd('yyyy',-1,'2024-02-29'))", "[2026-02-28, 2023-02-28]"},
        Row{"DateAdd('h',5,#2026-11-21 20:00#)", "2026-11-22 01:00:00"},
        Row{"DateAdd('s',-1,#1899-12-30#)", "1899-12-29 23:59:59"},
        Row{"DateAdd('ww',1,#2026-11-21#)", "2026-11-28"},
        Row{"Array(DateDiff('d',#2026-11-21#,#2026-12-25#), DateDiff('h',#10:59#,#11:00#))", "[34, 1]"},
        Row{"DateDiff('m',#2026-01-31#,#2026-02-01#)", "1"},
        Row{"DateDiff('ww',#2026-11-21#,#2026-11-22#)", "1"},
        Row{"DateDiff('ww',#2026-11-21#,#2026-11-22#,2)", "0"},
        Row{"DateDiff('q',#2025-12-31#,#2026-01-01#)", "1"},
        Row{"Array(DatePart('ww',#2026-01-04#), DatePart('ww',#2027-01-01#,2,2))", "[2, 53]"},
        Row{"Array(DatePart('ww',#2024-12-30#,2,2), DatePart('y',#2026-02-01#))", "[1, 32]"},
        Row{"DatePart('q',Now)", "4"},
        Row{"Array(DateSerial(2026,14,0), DateSerial(99,1,1))", "[2027-01-31, 1999-01-01]"},
        Row{"Array(DateValue(Now), DateValue('Feb 3'))", "[2026-11-21, 2026-02-03]"},
        Row{"DateValue('31/12/2026')", "2026-12-31"},
        Row{"Array(TimeSerial(12,90,0), TimeValue('8:05 pm'))", "[13:30:00, 20:05:00]"},
        Row{"Array(Weekday(#2026-11-21#), Weekday(#2026-11-21#,vbMonday))", "[7, 6]"},
        Row{"Weekday(#1890-01-01#)", "4"},
        Row{"Array(WeekdayName(1), WeekdayName(1,True,2))", "[|Sunday|, |Mon|]"},
        Row{"MonthName(11)&MonthName(2,True)", "|NovemberFeb|"},
    };
    check(kRows);
}

TEST(Evaluator, Formats) {
    static constexpr std::array kRows{
        Row{"Array(FormatNumber(1234567.891), FormatNumber(0.145,2))", "[|1,234,567.89|, |0.15|]"},
        Row{"Array(FormatNumber(0.5,1,0), FormatNumber(-1234,0,,-1,0))", "[|.5|, |(1234)|]"},
        Row{"Array(FormatNumber(-0.001), FormatNumber(999.999,2))", "[|0.00|, |1,000.00|]"},
        Row{"Array(FormatCurrency(-1234.5), FormatPercent(0.145,0))", "[|($1,234.50)|, |15%|]"},
        Row{"FormatDateTime(Now)", "|2026-11-21 20:31:07|"},
        Row{"Array(FormatDateTime(Now,1), FormatDateTime(Now,4))", "[|Saturday, November 21, 2026|, |20:31|]"},
        Row{"Array(Format(7,'000'), Format('7','000'), Format(1234,'0:00'))", "[|007|, |007|, |12:34|]"},
        Row{"Array(Format(5,'0:00'), Format(12.345,'##0.00'), Format(0.5,'##0.00'))", "[|0:05|, |12.35|, |0.50|]"},
        Row{"Array(Format(0.5,'#.##'), Format(1234567,'#,##0'))", "[|.5|, |1,234,567|]"},
        Row{"Array(Format(1234567,'0.0,,'), Format(0.256,'0.0%'), Format(-3,'0.0'))", "[|1.2|, |25.6%|, |-3.0|]"},
        Row{"Array(Format(-3,'0;(0);zero'), Format(0,'0;(0);\"zero\"'))", "[|(3)|, |zero|]"},
        Row{"Array(Format(12345,'0.00E+00'), Format(5,'0 \"pts\"'))", "[|1.23E+04|, |5 pts|]"},
        Row{"Array(Format(1/3,'Fixed'), Format(0,'Yes/No'))", "[|0.33|, |No|]"},
        Row{"Format(Now,'yyyy-mm-dd hh:mm:ss')", "|2026-11-21 20:31:07|"},
        Row{"Format(Now,'ddd d mmm yy h:nn AM/PM')", "|Sat 21 Nov 26 8:31 PM|"},
        Row{"Array(Format('2026-11-21','dddd'), Format(#10:05#,'Short Time'))", "[|Saturday|, |10:05|]"},
        Row{"Array(Format('abc','0.00'), Format('abc','>'), Format('ab','@@@'))", "[|abc|, |ABC|, | ab|]"},
        Row{"Format('12345','@-@@')", "|123-45|"},
        Row{"Format(Null,'0')", "||"},
        Row{"Format(9.995,'0.00')", "|10.00|"},
    };
    check(kRows);
}

TEST(Evaluator, WhatBelongsToTheLanguageBesides) {
    static constexpr std::array kRows{
        Row{"Array(Now, Time, Now <= Date + Time, Timer)", "[2026-11-21 20:31:07, 20:31:07, True, 73867.25]"},
        Row{"Array(Len(UCase('Μαΐου')), LCase('ΌΣΟΣ'), UCase('straße'))", "[5, |όσοσ|, |STRAßE|]"},
        Row{"Array(CDbl('1,234.5'), CInt('-1,234'), IsNumeric('1,234,567'), '1,000'+1)", "[1234.5, -1234, True, 1001]"},
        Row{"Array(CDbl(FormatCurrency(-1234.5)), IsNumeric('1,5'), IsNumeric(',123'), IsNumeric('12,34,567'))",
            "[-1234.5, False, False, False]"},
        Row{"Array(vbRed, vbCyan, vbObjectError, vbArray, Len(vbNullChar), AscW(vbFormFeed))",
            "[255, 16776960, -2147221504, 8192, 1, 12]"},
        Row{"Array(Round(12345678901234567)-12345678901234567, Round(123456789012.3456,3)-123456789012.346)", "[0, 0]"},
        Row{"Array(Round(2.5), Round(0.1+0.2,1), Round(-0.145,2))", "[2, 0.3, -0.14]"},
        Row{"Array(Format(9.999,'0.00E+00'), Format(99.99,'00.0E+00'), Format(0.0099999,'0.0E-00'))",
            "[|1.00E+01|, |10.0E+01|, |1.0E-02|]"},
        Row{"Array(Escape('Ω a/b'''), Unescape('%u03A9%20%zz%'), Unescape(Escape('a%Ω;')))",
            "[|%u03A9%20a/b%27|, |Ω %zz%|, |a%Ω;|]"},
        Row{"Array(LenB('abc'), LeftB('abc',3), RightB('abc',2), MidB('abc',3,2), InStrB('abc','b'), AscB(ChrB(200)))",
            "[6, |ab|, |c|, |b|, 3, 200]"},
        Row{"Array(IsObject(Empty), XmlText('O''N & \"<5>\" a|b#c;d\\\\'))", "[False, |O’N ＆ ”‹5›” a¦b＃c;d＼＼|]"},
    };
    check(kRows);
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
