#pragma once

#include <QStringList>

#include "engine/card_table.h"

namespace zelvor {

// Reads the lines of a CARDS.TXT into an empty table. lineNo is the number of the line being read, from 1. Throws
// RunTimeError at the first fault (9 for a number out of range, 62 for a set with too few cards, 6, 13); what was read
// before it stays in the table.
void readCardTable(const QStringList& lines, CardTable& table, int& lineNo);

// Whether a CARDS.TXT line begins with a keyword of the table, e.g. "SETNO:".
bool isCardTableKeyword(const QString& line);

}  // namespace zelvor
