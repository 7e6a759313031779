#pragma once

#include <QStringList>
#include <QTextStream>

namespace zelvor {

// `zelvor language-server`: serves an editor over standard input and output until it says "exit" or hangs up.
// arguments: behind the words. Returns the exit status. Throws UsageError.
int runLanguageServer(const QStringList& arguments, QTextStream& out, QTextStream& err);

}  // namespace zelvor
