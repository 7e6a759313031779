#pragma once

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "expr/cls_formula.h"

namespace zelvor::expr {

// The value of a formula that has one.
inline double evaluate(clsFormula& formula, std::string_view text) {
    EXPECT_TRUE(formula.StoreExpression(text)) << text << ": " << formula.ErrorDescription();
    const double value = formula.Eval();
    EXPECT_EQ(formula.ErrorID(), 0) << text << ": " << formula.ErrorDescription();
    return value;
}

// Each case is "formula -> value".
template <class... Cases>
void expectValues(clsFormula& formula, const Cases&... cases) {
    const auto expect = [&formula](std::string_view text) {
        const std::size_t arrow = text.find(" -> ");
        EXPECT_DOUBLE_EQ(evaluate(formula, text.substr(0, arrow)), std::stod(std::string(text.substr(arrow + 4))))
            << text;
    };
    (expect(cases), ...);
}

}  // namespace zelvor::expr
