#pragma once

#include <limits>
#include <numbers>

// The type in which series and reductions are summed before a result is rounded to double.
namespace zelvor::expr {

using Real = long double;

inline constexpr Real kPi = std::numbers::pi_v<Real>;
inline constexpr Real kEpsilon = std::numeric_limits<Real>::epsilon();

}  // namespace zelvor::expr
