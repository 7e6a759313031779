#pragma once

#include <QStringList>
#include <QTextStream>

namespace zelvor {

enum class RunStatus { Ran = 0, Failed = 1, NoScript = 3, NotReached = 4 };

// `zelvor run`: runs one card through the card engine without a display. arguments: behind the word "run". What the
// card puts on air and changes on the form is printed to `out` as it happens, messages and questions to `err`.
// Throws UsageError.
RunStatus runCard(const QStringList& arguments, QTextStream& out, QTextStream& err);

}  // namespace zelvor
