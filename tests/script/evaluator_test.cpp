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
        case Value::Kind::Array:
            return u'[' + value.text() + u']';
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
        Row{"42", "42"},
        Row{"1.50", "1.5"},
        Row{".5", "0.5"},
        Row{"5.", "5"},
        Row{"2e3", "2000"},
        Row{"1E+15", "1E+15"},
        Row{"3000000000", "3000000000"},
        Row{"&HFF", "255"},
        Row{"&HFFFF", "-1"},
        Row{"&HFFFF&", "65535"},
        Row{"&HFFFFFFFF", "-1"},
        Row{"&O17", "15"},
        Row{"&17", "15"},
        Row{"\"a\"\"b\"", "|a\"b|"},
        Row{"'qwerty'", "|qwerty|"},
        Row{"'it''s'", "|it's|"},
        Row{"'say \"x\"'", "|say \"x\"|"},
        Row{"''", "||"},
        Row{"'Ωμέγα'", "|Ωμέγα|"},
        Row{"#2026-11-21#", "2026-11-21"},
        Row{"#2026-11-21 20:31:07#", "2026-11-21 20:31:07"},
        Row{"#11/21/2026 8:31 PM#", "2026-11-21 20:31:00"},
        Row{"#21 November 2026#", "2026-11-21"},
        Row{"#12:00 AM#", "00:00:00"},
        Row{"true", "True"},
        Row{"FALSE", "False"},
        Row{"Null", "Null"},
        Row{"Empty", "Empty"},
        Row{"nobody", "Empty"},
        Row{"nobody + 1", "1"},
        Row{"'a' & vbCrLf = 'a' & Chr(13) & Chr(10)", "True"},
    };
    check(kRows);
}

TEST(Evaluator, OperatorLevels) {
    static constexpr std::array kRows{
        Row{"3>2", "True"},
        Row{"7 mod 4", "3"},
        Row{"mid('qwerty',1,3)='qwe'", "True"},
        Row{"7mod 4", "3"},
        Row{"1Eqv 1", "-1"},
        Row{"2+3*4", "14"},
        Row{"(2+3)*4", "20"},
        Row{"2^3^2", "64"},
        Row{"-2^2", "-4"},
        Row{"2^-1", "0.5"},
        Row{"2*-3", "-6"},
        Row{"1 - -1", "2"},
        Row{"+5", "5"},
        Row{"12/4*3", "9"},
        Row{"2*7\\3", "4"},
        Row{"12\\2*3", "2"},
        Row{"13 Mod 7\\2", "1"},
        Row{"5 + 7 Mod 4", "8"},
        Row{"10-3-2", "5"},
        Row{"1+2&3+4", "|37|"},
        Row{"'a'&1=\"a1\"", "True"},
        Row{"1<2=True", "True"},
        Row{"Not 1=2", "True"},
        Row{"Not True Or True", "True"},
        Row{"True Or False And False", "True"},
        Row{"True Xor True Or True", "False"},
        Row{"False Eqv True Xor True", "True"},
        Row{"True Imp False Eqv False", "True"},
        Row{"\"a\"&Hour(Now)", "|a20|"},
    };
    check(kRows);
}

TEST(Evaluator, Arithmetic) {
    static constexpr std::array kRows{
        Row{"1/3", "0.333333333333333"},
        Row{"0.1+0.2", "0.3"},
        Row{"7\\2", "3"},
        Row{"-7\\2", "-3"},
        Row{"2.5\\1", "2"},
        Row{"3.5\\1", "4"},
        Row{"-7 Mod 3", "-1"},
        Row{"7.5 Mod 3", "2"},
        Row{"-2147483648\\-1", "2147483648"},
        Row{"TypeName(32767)", "|Integer|"},
        Row{"TypeName(32767+1)", "|Long|"},
        Row{"TypeName(2147483647+1)", "|Double|"},
        Row{"2147483647*2147483647", "4.61168601413242E+18"},
        Row{"TypeName(4/2)", "|Double|"},
        Row{"True+True", "-2"},
        Row{"'12'+5", "17"},
        Row{"'12'+'5'", "|125|"},
        Row{"'3'*'4'", "12"},
        Row{"-'5'", "-5"},
        Row{"12&5", "|125|"},
        Row{"Empty+'x'", "|x|"},
        Row{"Empty&''", "||"},
        Row{"Empty+Empty", "0"},
        Row{"Null+1", "Null"},
        Row{"Null&'x'", "|x|"},
        Row{"Null&Null", "Null"},
        Row{"-Null", "Null"},
        Row{"#2026-12-31#+1", "2027-01-01"},
        Row{"#2026-01-01#-#2025-12-25#", "7"},
        Row{"#10:00#+0.5", "22:00:00"},
    };
    check(kRows);
}

TEST(Evaluator, ComparisonAndLogic) {
    static constexpr std::array kRows{
        Row{"10='10'", "True"},
        Row{"9<'10'", "True"},
        Row{"'9'<'10'", "False"},
        Row{"'10'>9", "True"},
        Row{"5='abc'", "False"},
        Row{"5<'abc'", "True"},
        Row{"'abc'<5", "False"},
        Row{"'a'='A'", "False"},
        Row{"'a'<>'b'", "True"},
        Row{"1=<1", "True"},
        Row{"2=>3", "False"},
        Row{"1<=1", "True"},
        Row{"2>=3", "False"},
        Row{"Empty=''", "True"},
        Row{"Empty=0", "True"},
        Row{"''=0", "False"},
        Row{"Null=Null", "Null"},
        Row{"True=-1", "True"},
        Row{"#2026-11-21#='2026-11-21'", "True"},
        Row{"#2026-11-21#<#2026-11-22#", "True"},
        Row{"6 And 3", "2"},
        Row{"6 Or 3", "7"},
        Row{"6 Xor 3", "5"},
        Row{"6 Eqv 3", "-6"},
        Row{"6 Imp 3", "-5"},
        Row{"Not 0", "-1"},
        Row{"2.5 And 3", "2"},
        Row{"True And 'True'", "True"},
        Row{"True And 3", "3"},
        Row{"False And Null", "False"},
        Row{"True And Null", "Null"},
        Row{"Null Or True", "True"},
        Row{"Null Or 0", "Null"},
        Row{"Null Xor 1", "Null"},
        Row{"False Imp Null", "True"},
        Row{"Null Imp False", "Null"},
        Row{"Not Null", "Null"},
    };
    check(kRows);
}

TEST(Evaluator, TextFunctions) {
    static constexpr std::array kRows{
        Row{"Asc('A')", "65"},
        Row{"Asc('Ω')", "217"},
        Row{"Chr(217)", "|Ω|"},
        Row{"AscW('Ω')", "937"},
        Row{"ChrW(937)", "|Ω|"},
        Row{"Filter(Split('ab,bc,cd', ','), 'b')", "[ab, bc]"},
        Row{"Filter(Array('ab','BC'), 'b', False, 1)", "[]"},
        Row{"InStr('abcabc','c')", "3"},
        Row{"InStr(4,'abcabc','c')", "6"},
        Row{"InStr(1,'abc','B',1)", "2"},
        Row{"InStr('abc','')", "1"},
        Row{"InStr('','')", "0"},
        Row{"InStr('abc',Null)", "Null"},
        Row{"InStrRev('abcabc','c')", "6"},
        Row{"InStrRev('abcabc','c',5)", "3"},
        Row{"InStrRev('abc','bc',2)", "0"},
        Row{"Join(Array(1,'b',True),'-')", "|1-b-True|"},
        Row{"Join(Array('a','b'))", "|a b|"},
        Row{"LCase('ΑΒC')", "|αβc|"},
        Row{"UCase('abc')", "|ABC|"},
        Row{"Left('abc',2)", "|ab|"},
        Row{"Left('abc',9)", "|abc|"},
        Row{"Left(Null,1)", "Null"},
        Row{"Right('abc',2)", "|bc|"},
        Row{"Mid('abc',2)", "|bc|"},
        Row{"Mid('abc',9)", "||"},
        Row{"Len('abc')", "3"},
        Row{"Len(1234)", "4"},
        Row{"Len(Null)", "Null"},
        Row{"'['&LTrim('  a ')&']'", "|[a ]|"},
        Row{"'['&RTrim('  a ')&']'", "|[  a]|"},
        Row{"'['&Trim('  a ')&']'", "|[a]|"},
        Row{"Replace('a-b-c','-','')", "|abc|"},
        Row{"Replace('aXbx','x','.',1,-1,1)", "|a.b.|"},
        Row{"Replace('aaaa','a','b',2,2)", "|bba|"},
        Row{"Replace('abc','b','x',,1)", "|axc|"},
        Row{"Space(2)&'x'", "|  x|"},
        Row{"String(3,'*')", "|***|"},
        Row{"String(2,65)", "|AA|"},
        Row{"Split(\"a,b\", \",\")(1)", "|b|"},
        Row{"UBound(Split('',','))", "-1"},
        Row{"Split('a b c',' ',2)", "[a, b c]"},
        Row{"Array(Array(1,2),3)(0)(1)", "2"},
        Row{"StrComp('a','B')", "1"},
        Row{"StrComp('a','A',1)", "0"},
        Row{"StrReverse('abc')", "|cba|"},
    };
    check(kRows);
}

TEST(Evaluator, NumberAndValueFunctions) {
    static constexpr std::array kRows{
        Row{"Abs(-3)", "3"},
        Row{"Abs('-2.5')", "2.5"},
        Row{"Atn(1)*4", "3.14159265358979"},
        Row{"Cos(0)+Sin(0)+Tan(0)", "1"},
        Row{"Exp(1)", "2.71828182845905"},
        Row{"Log(Exp(2))", "2"},
        Row{"Sqr(2)", "1.4142135623731"},
        Row{"Int(-2.5)", "-3"},
        Row{"Fix(-2.5)", "-2"},
        Row{"Int(Null)", "Null"},
        Row{"Round(2.5)", "2"},
        Row{"Round(3.5)", "4"},
        Row{"Round(2.675,2)", "2.68"},
        Row{"Round(-1.25,1)", "-1.2"},
        Row{"Sgn(-4)&Sgn(0)&Sgn(9)", "|-101|"},
        Row{"Hex(255)", "|FF|"},
        Row{"Hex(-1)", "|FFFF|"},
        Row{"Hex(-40000)", "|FFFF63C0|"},
        Row{"Oct(8)", "|10|"},
        Row{"RGB(200,0,0)", "200"},
        Row{"RGB(0,300,1)", "130816"},
        Row{"Rnd", "0.25"},
        Row{"Rnd(-3)=Rnd(-3)", "True"},
        Row{"Rnd(-3)=Rnd(0)", "True"},
        Row{"CInt(2.5)", "2"},
        Row{"CInt('3.5')", "4"},
        Row{"CLng(-2147483648)", "-2147483648"},
        Row{"CByte(255)", "255"},
        Row{"CBool('true')", "True"},
        Row{"CBool(0)", "False"},
        Row{"CCur(1.23455)", "1.2346"},
        Row{"CSng(1/3)", "0.3333333"},
        Row{"CDbl('1e3')", "1000"},
        Row{"CStr(1.5)&CStr(True)", "|1.5True|"},
        Row{"CDate('2026-11-21T20:31:07')", "2026-11-21 20:31:07"},
        Row{"CDate(1.5)", "1899-12-31 12:00:00"},
        Row{"IsArray(Array())", "True"},
        Row{"IsDate('2026-02-30')", "False"},
        Row{"IsDate('Nov 21')", "True"},
        Row{"IsDate('3.14')", "False"},
        Row{"IsDate('99999999999999999999-1-1')", "False"},
        Row{"IsEmpty(nobody)", "True"},
        Row{"IsNull(Null+1)", "True"},
        Row{"IsNumeric('1e5')", "True"},
        Row{"IsNumeric('1e999')", "False"},
        Row{"IsNumeric('12a')", "False"},
        Row{"LBound(Array(1))&UBound(Array(1,2))", "|01|"},
        Row{"TypeName(Array())", "|Variant()|"},
        Row{"TypeName(Now)&TypeName('')", "|DateString|"},
        Row{"VarType(1)&VarType(70000)&VarType(1.5)", "|235|"},
        Row{"VarType(Array(1))", "8204"},
        Row{"IIf(1>2,'yes','no')", "|no|"},
        Row{"IIf(Null,1,2)", "2"},
        Row{"Eval('1+'&'2')", "3"},
        Row{"Eval(7)", "7"},
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
        Row{"DateAdd('m',1,#2026-01-31#)", "2026-02-28"},
        Row{"DateAdd('yyyy',-1,'2024-02-29')", "2023-02-28"},
        Row{"DateAdd('h',5,#2026-11-21 20:00#)", "2026-11-22 01:00:00"},
        Row{"DateAdd('s',-1,#1899-12-30#)", "1899-12-29 23:59:59"},
        Row{"DateAdd('ww',1,#2026-11-21#)", "2026-11-28"},
        Row{"DateDiff('d',#2026-11-21#,#2026-12-25#)", "34"},
        Row{"DateDiff('h',#10:59#,#11:00#)", "1"},
        Row{"DateDiff('m',#2026-01-31#,#2026-02-01#)", "1"},
        Row{"DateDiff('ww',#2026-11-21#,#2026-11-22#)", "1"},
        Row{"DateDiff('ww',#2026-11-21#,#2026-11-22#,2)", "0"},
        Row{"DateDiff('q',#2025-12-31#,#2026-01-01#)", "1"},
        Row{"DatePart('ww',#2026-01-04#)", "2"},
        Row{"DatePart('ww',#2027-01-01#,2,2)", "53"},
        Row{"DatePart('ww',#2024-12-30#,2,2)", "1"},
        Row{"DatePart('y',#2026-02-01#)", "32"},
        Row{"DatePart('q',Now)", "4"},
        Row{"DateSerial(2026,14,0)", "2027-01-31"},
        Row{"DateSerial(99,1,1)", "1999-01-01"},
        Row{"DateValue(Now)", "2026-11-21"},
        Row{"DateValue('Feb 3')", "2026-02-03"},
        Row{"DateValue('31/12/2026')", "2026-12-31"},
        Row{"TimeSerial(12,90,0)", "13:30:00"},
        Row{"TimeValue('8:05 pm')", "20:05:00"},
        Row{"Weekday(#2026-11-21#)", "7"},
        Row{"Weekday(#2026-11-21#,vbMonday)", "6"},
        Row{"Weekday(#1890-01-01#)", "4"},
        Row{"WeekdayName(1)", "|Sunday|"},
        Row{"WeekdayName(1,True,2)", "|Mon|"},
        Row{"MonthName(11)&MonthName(2,True)", "|NovemberFeb|"},
    };
    check(kRows);
}

TEST(Evaluator, Formats) {
    static constexpr std::array kRows{
        Row{"FormatNumber(1234567.891)", "|1,234,567.89|"},
        Row{"FormatNumber(0.145,2)", "|0.15|"},
        Row{"FormatNumber(0.5,1,0)", "|.5|"},
        Row{"FormatNumber(-1234,0,,-1,0)", "|(1234)|"},
        Row{"FormatNumber(-0.001)", "|0.00|"},
        Row{"FormatNumber(999.999,2)", "|1,000.00|"},
        Row{"FormatCurrency(-1234.5)", "|($1,234.50)|"},
        Row{"FormatPercent(0.145,0)", "|15%|"},
        Row{"FormatDateTime(Now)", "|2026-11-21 20:31:07|"},
        Row{"FormatDateTime(Now,1)", "|Saturday, November 21, 2026|"},
        Row{"FormatDateTime(Now,4)", "|20:31|"},
        Row{"Format(7,'000')", "|007|"},
        Row{"Format('7','000')", "|007|"},
        Row{"Format(1234,'0:00')", "|12:34|"},
        Row{"Format(5,'0:00')", "|0:05|"},
        Row{"Format(12.345,'##0.00')", "|12.35|"},
        Row{"Format(0.5,'##0.00')", "|0.50|"},
        Row{"Format(0.5,'#.##')", "|.5|"},
        Row{"Format(1234567,'#,##0')", "|1,234,567|"},
        Row{"Format(1234567,'0.0,,')", "|1.2|"},
        Row{"Format(0.256,'0.0%')", "|25.6%|"},
        Row{"Format(-3,'0.0')", "|-3.0|"},
        Row{"Format(-3,'0;(0);zero')", "|(3)|"},
        Row{"Format(0,'0;(0);\"zero\"')", "|zero|"},
        Row{"Format(12345,'0.00E+00')", "|1.23E+04|"},
        Row{"Format(5,'0 \"pts\"')", "|5 pts|"},
        Row{"Format(1/3,'Fixed')", "|0.33|"},
        Row{"Format(0,'Yes/No')", "|No|"},
        Row{"Format(Now,'yyyy-mm-dd hh:mm:ss')", "|2026-11-21 20:31:07|"},
        Row{"Format(Now,'ddd d mmm yy h:nn AM/PM')", "|Sat 21 Nov 26 8:31 PM|"},
        Row{"Format('2026-11-21','dddd')", "|Saturday|"},
        Row{"Format(#10:05#,'Short Time')", "|10:05|"},
        Row{"Format('abc','0.00')", "|abc|"},
        Row{"Format('abc','>')", "|ABC|"},
        Row{"Format('ab','@@@')", "| ab|"},
        Row{"Format('12345','@-@@')", "|123-45|"},
        Row{"Format(Null,'0')", "||"},
        Row{"Format(9.995,'0.00')", "|10.00|"},
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
