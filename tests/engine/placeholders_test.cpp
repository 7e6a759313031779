#include "engine/placeholders.h"

#include <gtest/gtest.h>

#include "base/run_time_error.h"
#include "support/cases.h"

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
        const auto outcome = [](const auto& action) -> QString {
            try {
                return action();
            } catch (const RunTimeError& error) {
                return u"error %1"_s.arg(error.number());
            }
        };
        const QString prepared = outcome([&] {
            QString out;
            ExpandableText(text).expandInto(out, variables_, result_);
            return out;
        });
        EXPECT_EQ(outcome([&] { return EXPAND_VARS(text, variables_, result_); }), prepared);
        return prepared;
    }

    VariableStore variables_;
    QueryResult result_;
};

TEST_F(Placeholders, AreReplacedFromTheInsideOut) {
    test::forCases(
        [this](const QString& text, const QString& expanded) { EXPECT_EQ(expanded, expand(text)) << qPrintable(text); },
        " -> ", "plain } -> plain }", "%{@X} -> %{@X}", "A{@X}B{@X} -> A1B1", "{@Y} -> 1", "{@UNKNOWN}| -> |",
        "{@N}{@NULL} -> 2.5", "{1|0} {{@X}|0} {2|{@X}} -> one one 22",
        "[{3|0}{1|3}{0|0}{1|2}{1|1}{-1|0}{1|-0.6}{5000000000|0}] -> []", "{@OPEN}X} -> 1", "{@CLOSE} -> a}b",
        "{@X}}{@X} -> 1}1", "{@CLOSE}{@CLOSE}} -> a}ba}b}", "{@X{@UNKNOWN}} -> 1");
    EXPECT_NE(nullptr, variables_.find(u"@UNKNOWN"));
}

TEST_F(Placeholders, ThatCannotBeReplacedAreErrors) {
    const std::pair<QString, int> rows[] = {
        {u"{@X"_s, 5},          {u"a}{@X}"_s, 5},   {u"{@X}}{@Y}"_s, 5}, {u"{@X {@X}"_s, 5},
        {u"{@CLOSE}{@X}"_s, 5}, {u"{a|1}"_s, 13},   {u"{1|}"_s, 13},     {u"{1}"_s, 9},
        {u"{}"_s, 9},           {u"{@LOOP}"_s, 28}, {u"{@GROWS}"_s, 28},
    };
    for (const auto& [text, number] : rows) EXPECT_EQ(u"error %1"_s.arg(number), expand(text)) << text.toStdString();
}

}  // namespace
}  // namespace zelvor
