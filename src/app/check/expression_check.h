#pragma once

#include <QString>

#include "app_check/findings.h"
#include "expr/cls_formula.h"
#include "script/evaluator.h"

namespace zelvor {

// Formulas and script expressions, as far as they are known: of one with placeholders only the functions that it calls.
class ExpressionCheck {
 public:
    void checkFormula(const QString& formula, const Place& place, Findings& findings);
    void checkExpression(const QString& expression, const Place& place, Findings& findings) const;
    // An operand of IF, which is an expression behind "EVAL".
    void checkOperand(const QString& operand, const Place& place, Findings& findings) const;

 private:
    expr::clsFormula formula_;
    script::Evaluator evaluator_;
};

}  // namespace zelvor
