#include <gtest/gtest.h>

#include "base/number.h"
#include "base/run_time_error.h"
#include "base/value.h"

using namespace Qt::StringLiterals;

namespace zelvor {
namespace {

template <class Action>
int errorOf(Action&& action) {
    try {
        action();
        return 0;
    } catch (const RunTimeError& error) {
        return error.number();
    }
}

TEST(Numbers, ValTakesTheLeadingNumber) {
    const std::pair<QString, double> rows[] = {
        {u""_s, 0},         {u"12abc"_s, 12}, {u" 1 2 . 5 x"_s, 12.5}, {u"-.5"_s, -0.5},  {u"1e3"_s, 1000},
        {u"1D-2z"_s, .01},  {u"2e+"_s, 2},    {u"&HFF"_s, 255},        {u"&HFFFF"_s, -1}, {u"&h10000"_s, 65536},
        {u"&17"_s, 15},     {u"--1"_s, 0},    {u"1,5"_s, 1},           {u"٣"_s, 0},       {u"1e-999"_s, 0},
        {u"\t\r\n 9"_s, 9}, {u"+.5x"_s, .5},  {u"&HFFFF&"_s, 65535},   {u"&A7"_s, 0},     {u"&&5"_s, 0},
        {u"&"_s, 0},
    };
    for (const auto& [text, number] : rows) EXPECT_EQ(number, Val(text)) << text.toStdString();
    EXPECT_EQ(6, errorOf([] { Val(u"1e999"); }));
}

TEST(Numbers, ReadAsTextWithFifteenDigits) {
    const std::pair<double, const char*> rows[] = {
        {-0.0, "0"},        {1.0 / 3, "0.333333333333333"}, {1e15, "1E+15"},
        {1e-7, "1E-07"},    {-1.5e-10, "-1.5E-10"},         {0.0001, "0.0001"},
        {0.1 + 0.2, "0.3"},
    };
    for (const auto& [number, text] : rows) EXPECT_EQ(text, numberText(number).toStdString());
}

TEST(Numbers, WholeNumbersRoundHalvesToEvenAndMindTheirRange) {
    EXPECT_EQ(4, wholeNumber16(u" 3.5 "));
    EXPECT_EQ(-2, wholeNumber16(-2.5));
    EXPECT_EQ(32767, wholeNumber16(32767.4));
    EXPECT_EQ(65280, wholeNumber32(u"&HFF00&"));
    EXPECT_EQ(6, errorOf([] { wholeNumber16(u"32767.5"); }));
    EXPECT_EQ(6, errorOf([] { wholeNumber32(2147483648.0); }));
    for (const QStringView text : {u"", u"x", u"1x", u"1 2", u"&H", u"&x5"})
        EXPECT_EQ(13, errorOf([&] { wholeNumber32(text); })) << text.toString().toStdString();
    try {
        wholeNumber32(u" ");
    } catch (const RunTimeError& error) {
        EXPECT_EQ("Type mismatch: \"\"", error.text().toStdString());
    }
}

TEST(Values, ReadAsTextAndAsNumbers) {
    EXPECT_EQ(u"True"_s, Value(true).text());
    EXPECT_EQ(-1, Value(true).number());
    EXPECT_EQ(u""_s, Value(Value::Null()).text());
    EXPECT_EQ(94, errorOf([] { (void)Value(Value::Null()).number(); }));
    EXPECT_EQ(13, errorOf([] { (void)Value(u"7x"_s).number(); }));
    EXPECT_EQ(7, Value(u"7x"_s).leadingNumber());
    const QDateTime when(QDate(2026, 11, 21), QTime(20, 31, 7));
    EXPECT_EQ(u"2026-11-21 20:31:07"_s, Value::fromDateTime(when).text());
    EXPECT_EQ(u"06:00:00"_s, Value(Value::Date{0.25}).text());
    EXPECT_EQ(u"1899-12-29 06:00:00"_s, Value(Value::Date{-1.25}).text());
    EXPECT_EQ(when, toDateTime(*Value::fromDateTime(when).as<Value::Date>()));
}

}  // namespace
}  // namespace zelvor
