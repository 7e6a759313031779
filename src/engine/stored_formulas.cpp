#include "engine/stored_formulas.h"

namespace zelvor {

namespace {

constexpr QStringView kOperators = u"+-*/\\^%()<>= ";
constexpr qsizetype kMostDigits = 15;

bool isDigit(QChar c) {
    return c >= u'0' && c <= u'9';
}

}  // namespace

std::optional<double> StoredFormulas::calculate(QStringView text) {
    if (!takeApart(text)) return std::nullopt;
    auto found = formulas_.find(pattern_);
    if (found == formulas_.end()) {
        if (formulas_.size() == kMost) formulas_.clear();
        auto formula = std::make_unique<expr::clsFormula>();
        if (!formula->StoreExpression(pattern_)) formula.reset();
        found = formulas_.emplace(pattern_, std::move(formula)).first;
    }
    expr::clsFormula* const stored = found->second.get();
    if (stored == nullptr) return std::nullopt;
    for (std::size_t i = 0; i < numbers_.size(); ++i) stored->VarValue(static_cast<int>(i) + 1, numbers_[i]);
    const double value = stored->Eval();
    return stored->ErrorID() == 0 ? std::optional(value) : std::nullopt;
}

bool StoredFormulas::takeApart(QStringView text) {
    pattern_.clear();
    numbers_.clear();
    for (qsizetype at = 0; at < text.size();) {
        if (!isDigit(text[at])) {
            if (!kOperators.contains(text[at])) return false;
            pattern_ += static_cast<char>(text[at++].unicode());
            continue;
        }
        double number = 0;
        const qsizetype start = at;
        for (; at < text.size() && isDigit(text[at]); ++at) number = number * 10 + (text[at].unicode() - u'0');
        if (at - start > kMostDigits) return false;
        numbers_.push_back(number);
        pattern_ += 'n';
        pattern_ += std::to_string(numbers_.size());
    }
    return numbers_.size() > 1;
}

}  // namespace zelvor
