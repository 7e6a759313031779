#pragma once

#include <span>
#include <string_view>

namespace zelvor::expr {

// A named number. Names are case-sensitive; "pi" alone is also "PI".
struct Constant {
    std::string_view name;
    double value;
    std::string_view meaning;
};

std::span<const Constant> constants();

// Null when there is no constant of that name.
const Constant* findConstant(std::string_view name);

}  // namespace zelvor::expr
