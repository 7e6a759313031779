#pragma once

#include <iosfwd>
#include <span>
#include <string>

namespace zelvor {

// `zelvor calc`: evaluates a formula. arguments: behind the word "calc". The result goes to `out`; messages, with the
// formula and a caret under the place they mean, and warnings go to `err`. Gives the exit status: 0, 1 for an error in
// the formula, 2 for wrong usage.
int runCalc(std::span<const std::string> arguments, std::ostream& out, std::ostream& err);

}  // namespace zelvor
