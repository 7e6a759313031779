#include "engine/calculator.h"

#include <gtest/gtest.h>

#include <random>

#include "base/run_time_error.h"
#include "support/fake_ports.h"

namespace zelvor {
namespace {

// Formulas put together at random, most of them well formed: calculated again and again with other numbers they give,
// to the last bit or the last word of the error, what each gives by itself.
TEST(Calculator, GivesWhatEachFormulaGivesByItself) {
    const test::FakeClock clock;
    Calculator calculator(clock);
    std::mt19937 random(20261122);
    const auto below = [&random](unsigned limit) { return random() % limit; };
    const std::vector<std::string> operators{"+",  "-", "*",  "/",  "^", "\\",  " - ", "*-",
                                             "%+", "<", "<>", ">=", "",  "^2*", "=0+", ".5/"};
    const std::vector<std::string> before{"", "", "", "(", "-", "3*(", "|", "sqr("};
    int values = 0;
    for (int round = 0; round < 3000; ++round) {
        std::string pattern;
        for (unsigned operand = 0, count = 1 + below(5); operand < count; ++operand) {
            if (operand > 0) pattern += operators[below(operators.size())];
            const std::string& opener = before[below(before.size())];
            pattern += opener + '#' + (opener.ends_with('(') && below(9) > 0 ? ")" : "");
        }
        for (int again = 0; again < 3; ++again) {
            std::string text;
            for (const char c : pattern) {
                text += c == '#' ? std::to_string(below(6) == 0 ? std::uint64_t{random()} << below(32) : below(12))
                                 : std::string(1, c);
            }
            expr::clsFormula alone;
            alone.StoreExpression(text);
            const double expected = alone.Eval();
            try {
                EXPECT_EQ(calculator.calculate(QString::fromStdString(text)), expected) << text;
                EXPECT_EQ(alone.ErrorID(), 0) << text;
                ++values;
            } catch (const RunTimeError& error) {
                EXPECT_EQ(error.text().toStdString(), alone.ErrorDescription() + " in " + text);
            }
        }
    }
    EXPECT_GT(values, 3000);
    try {
        calculator.calculate(u"");
    } catch (const RunTimeError& error) {
        EXPECT_EQ(error.text().toStdString(), "Syntax error at pos: 1 in \"\"");
    }
}

}  // namespace
}  // namespace zelvor
