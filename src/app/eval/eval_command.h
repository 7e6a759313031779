#pragma once

#include <QStringList>
#include <QTextStream>

namespace zelvor {

// `zelvor eval`: prints the value of one script expression to `out`, Null as "Null", an array as its elements with
// ", " between. arguments: behind the word "eval"; several words are one expression with blanks between. Returns the
// exit status: 0, or 1 when the expression cannot be evaluated ("Error N: text" and the position to `err`). Throws
// UsageError.
int runEval(const QStringList& arguments, QTextStream& out, QTextStream& err);

}  // namespace zelvor
