#pragma once

#include <gtest/gtest.h>

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

}  // namespace zelvor::expr
