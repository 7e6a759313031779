#pragma once

#include <QTextStream>
#include <vector>

#include "as_run/as_run_reader.h"

namespace zelvor {

// A line for each card, with its lines and replies below it where they are wanted.
void printAsRun(QTextStream& out, const std::vector<AsRunCard>& cards, bool lines);
// The same as comma-separated values, a heading first.
void printAsRunCsv(QTextStream& out, const std::vector<AsRunCard>& cards);
// How often each card, and each sponsor, was on air and for how long.
void printAsRunSums(QTextStream& out, const std::vector<AsRunCard>& cards);

// The lines of a card, one below the other: "main > CG 1-20 STOP 1 = 202 CG OK".
QString asRunLines(const AsRunCard& card);

}  // namespace zelvor
