#pragma once

#include <QStringList>

namespace zelvor {

// The known word with the fewest letters changed, added, dropped or swapped; empty when none is within a third of the
// word's length.
QString nearestWord(const QString& word, const QStringList& known);

}  // namespace zelvor
