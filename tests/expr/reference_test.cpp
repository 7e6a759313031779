#include <gtest/gtest.h>

#include <cfloat>
#include <charconv>
#include <cmath>
#include <fstream>
#include <string>

#include "expr/cls_formula.h"

namespace zelvor::expr {
namespace {

// The distance from one double of this size to the next.
double unitInLastPlace(double value) {
    return std::max(std::ldexp(DBL_EPSILON, std::ilogb(value)), DBL_TRUE_MIN);
}

// Every formula of reference.txt within the accuracy that the line "# ulp N" or "# relative X" above it asks for.
TEST(FormulaReference, FunctionsAreAccurate) {
    std::ifstream file(TEST_DATA_DIR "/reference.txt");
    clsFormula formula;
    std::string line;
    std::string measure;
    double limit = 0;
    int checked = 0;
    while (std::getline(file, line)) {
        if (line.starts_with("# ")) {
            const std::size_t gap = line.find(' ', 2);
            measure = line.substr(2, gap - 2);
            limit = std::stod(line.substr(gap));
            continue;
        }
        const std::size_t tab = line.find('\t');
        const std::string text = line.substr(0, tab);
        long double expected = 0;
        std::from_chars(line.data() + tab + 1, line.data() + line.size(), expected);
        ASSERT_TRUE(formula.StoreExpression(text)) << text << ": " << formula.ErrorDescription();
        const double value = formula.Eval();
        EXPECT_EQ(formula.ErrorDescription(), "") << text;
        const auto nearest = static_cast<double>(expected);
        const double allowed = measure == "ulp" ? limit * unitInLastPlace(nearest) : limit * std::fabs(nearest);
        EXPECT_LE(static_cast<double>(std::fabs(value - expected)), allowed) << text << " gives " << value;
        ++checked;
    }
    EXPECT_GT(checked, 250);
}

}  // namespace
}  // namespace zelvor::expr
