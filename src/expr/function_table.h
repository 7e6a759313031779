#pragma once

#include <span>
#include <string_view>
#include <variant>

#include "expr/arguments.h"

namespace zelvor::expr {

using Unary = double (*)(double);
using Binary = double (*)(double, double);
using Ternary = double (*)(double, double, double);
using Quaternary = double (*)(double, double, double, double);
using Angular = double (*)(double, Angle);
using Variadic = double (*)(const Arguments&);
using Contextual = double (*)(const Arguments&, Context&);

// One function that formulas may call. The parser, the terminal tool's list and the reference page are all made from
// the table of them.
struct Function {
    std::string_view name;
    // Number of arguments, kAnyNumber for one or more.
    int arity;
    std::string_view arguments;
    std::string_view meaning;
    // Fails by returning NaN or an infinity.
    std::variant<Unary, Binary, Ternary, Quaternary, Angular, Variadic, Contextual> body;
};

inline constexpr int kAnyNumber = -1;

// In the order of the reference page.
std::span<const Function> functions();

// A heading of the reference page, and the function that it stands before.
struct FunctionGroup {
    std::string_view title;
    std::string_view first;
};

std::span<const FunctionGroup> functionGroups();

// Without regard to case; null when there is no function of that name.
const Function* findFunction(std::string_view name);

// "DATE", "TIME" and "NOW", which stand without brackets; null for any other name.
const Function* findMoment(std::string_view name);

// The functions behind the bars, the postfix "!" and an angle written in degrees, minutes and seconds.
const Function& absoluteValue();
const Function& factorialFunction();
const Function& degreesFunction();
// Takes a group of degrees, minutes and seconds as it stands.
const Function& decimalDegrees();

}  // namespace zelvor::expr
