#pragma once

#include <QStringList>
#include <iosfwd>

namespace zelvor {

// `zelvor calc`: evaluates a formula. arguments: behind the word "calc". The result goes to `out`; messages, with the
// formula and a caret under the place they mean, and warnings go to `err`. Gives the exit status: 0, 1 for an error in
// the formula. Throws UsageError.
int runCalc(const QStringList& arguments, std::ostream& out, std::ostream& err);

}  // namespace zelvor
