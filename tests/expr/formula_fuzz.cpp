// Throws arbitrary texts at the formula parser and evaluates what it accepts. The first byte chooses the settings.

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "expr/cls_formula.h"

namespace {

void require(bool condition) {
    if (!condition) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) return 0;
    const unsigned settings = data[0];
    const std::string_view text(reinterpret_cast<const char*>(data) + 1, size - 1);

    zelvor::expr::clsFormula formula;
    formula.OpUnitConv((settings & 1U) != 0);
    formula.OpDMSConv((settings & 2U) != 0);
    formula.AngleUnit((settings & 4U) != 0 ? "DEG" : "RAD");
    const bool stored = formula.StoreExpression(text);
    require(stored == (formula.ErrorID() == 0));
    for (int i = 1; i <= formula.VarTop(); ++i) formula.VarValue(i, i - 1.5);
    const double value = formula.Eval();
    require(std::isfinite(value));
    require(stored || formula.ErrorID() != 0);
    require(formula.ErrorDescription().empty() == (formula.ErrorID() == 0));
    require(formula.ErrorPos() >= 0 && formula.ErrorPos() <= static_cast<int>(text.size()) + 1);
    require(formula.ET_Dump().starts_with("Fun"));
    return 0;
}
