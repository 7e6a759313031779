#pragma once

#include <QStringView>

#include "base/value.h"
#include "engine/ports.h"
#include "engine/stored_formulas.h"
#include "expr/cls_formula.h"
#include "script/evaluator.h"

namespace zelvor {

// The two evaluators that scripts use: formulas for CALC, script expressions for EVAL. One formula object serves the
// whole program, so that its memory is used again.
class Calculator {
 public:
    // The clock answers what formulas and script expressions ask of date and time.
    explicit Calculator(const Clock& clock);

    // A formula's value. Throws 5 with the parser's message for one that does not parse or evaluate.
    double calculate(QStringView formula);
    // What the last formula had to say beside its value; empty for nothing.
    [[nodiscard]] std::string_view warning() const { return wasStored_ ? std::string_view() : formula_.Warning(); }
    // A script expression's value. Throws the evaluator's errors, with the expression and the place in their texts.
    [[nodiscard]] Value evaluate(QStringView expression) const;

 private:
    expr::clsFormula formula_;
    StoredFormulas stored_;
    bool wasStored_ = false;  // the last formula
    script::Evaluator evaluator_;
};

}  // namespace zelvor
