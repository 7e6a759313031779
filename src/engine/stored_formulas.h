#pragma once

#include <QStringView>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "expr/cls_formula.h"

namespace zelvor {

// Formulas of whole numbers and operators alone, stored once and fed their numbers: what a record loop computes again
// and again differs in nothing else. A number of up to 15 digits between operators is one operand as a variable is, and
// its double is exact, so that the value is the same to the last bit; a formula that does not parse so, or fails, is
// none of these, and the text's own parse says why.
class StoredFormulas {
 public:
    // The formula's value; nullopt when it has to be parsed as it stands.
    std::optional<double> calculate(QStringView text);

 private:
    static constexpr std::size_t kMost = 64;

    bool takeApart(QStringView text);

    std::string pattern_;  // the formula with a variable's name for each number
    std::vector<double> numbers_;
    // By their patterns; null for one that does not parse.
    std::unordered_map<std::string, std::unique_ptr<expr::clsFormula>> formulas_;
};

}  // namespace zelvor
