#include "engine/placeholders.h"

#include <gtest/gtest.h>

#include "base/run_time_error.h"

using namespace Qt::StringLiterals;

namespace zelvor {
namespace {

class Placeholders : public testing::Test {
 protected:
    Placeholders() {
        variables_.SetVar(u"@X", u"1"_s);
        variables_.SetVar(u"@Y", u"{@X}"_s);
        variables_.SetVar(u"@OPEN", u"{@"_s);
        variables_.SetVar(u"@CLOSE", u"a}b"_s);
        variables_.SetVar(u"@N", 2.5);
        variables_.SetVar(u"@NULL", Value::Null());
        variables_.SetVar(u"@LOOP", u"x{@LOOP}"_s);
        variables_.SetVar(u"@GROWS", QString(u"{@GROWS}{@GROWS}"_s + QString(1000, u'x')));
        result_ = QueryResult(2, 2);
        result_.cell(1, 0) = u"one"_s;
        result_.cell(2, 1) = 22;
    }

    // Both ways of expanding a text must agree.
    QString expand(const QString& text) {
        QString prepared;
        ExpandableText(text).expandInto(prepared, variables_, result_);
        EXPECT_EQ(EXPAND_VARS(text, variables_, result_), prepared);
        return prepared;
    }
    int errorOf(const QString& text) {
        int number = 0;
        try {
            EXPAND_VARS(text, variables_, result_);
        } catch (const RunTimeError& error) {
            number = error.number();
        }
        try {
            QString out;
            ExpandableText(text).expandInto(out, variables_, result_);
        } catch (const RunTimeError& error) {
            EXPECT_EQ(number, error.number());
        }
        return number;
    }

    VariableStore variables_;
    QueryResult result_;
};

TEST_F(Placeholders, AreReplacedFromTheInsideOut) {
    const std::pair<QString, QString> rows[] = {
        {u""_s, u""_s},
        {u"plain }"_s, u"plain }"_s},
        {u"%{@X}"_s, u"%{@X}"_s},
        {u"A{@X}B{@X}"_s, u"A1B1"_s},
        {u"{@Y}"_s, u"1"_s},
        {u"{@UNKNOWN}|"_s, u"|"_s},
        {u"{@N}{@NULL}"_s, u"2.5"_s},
        {u"{1|0} {{@X}|0} {2|{@X}}"_s, u"one one 22"_s},
        {u"[{3|0}{1|3}{0|0}{1|2}{1|1}]"_s, u"[]"_s},
        {u"{@OPEN}X}"_s, u"1"_s},
        {u"{@CLOSE}"_s, u"a}b"_s},
        {u"{@X{@UNKNOWN}}"_s, u"1"_s},
    };
    for (const auto& [text, expanded] : rows) EXPECT_EQ(expanded, expand(text)) << text.toStdString();
    EXPECT_NE(nullptr, variables_.find(u"@UNKNOWN"));
}

TEST_F(Placeholders, ThatCannotBeReplacedAreErrors) {
    const std::pair<QString, int> rows[] = {
        {u"{@X"_s, 5},          {u"a}{@X}"_s, 5}, {u"{@X}}{@X}"_s, 5}, {u"{@X {@X}"_s, 5},
        {u"{@CLOSE}{@X}"_s, 5}, {u"{a|1}"_s, 13}, {u"{1|}"_s, 13},     {u"{1}"_s, 9},
        {u"{}"_s, 9},           {u"{-1|0}"_s, 9}, {u"{@LOOP}"_s, 28},  {u"{@GROWS}"_s, 28},
    };
    for (const auto& [text, number] : rows) EXPECT_EQ(number, errorOf(text)) << text.toStdString();
}

TEST_F(Placeholders, ThePreviousAnswerIsLeftAloneWhereAsked) {
    EXPECT_EQ(u"1 '{@@}' 1"_s, EXPAND_VARS(u"{@X} '{@@}' {@X}"_s, variables_, result_, PreviousAnswer::LeftAlone));
    EXPECT_EQ(nullptr, variables_.find(u"@@"));
}

}  // namespace
}  // namespace zelvor
