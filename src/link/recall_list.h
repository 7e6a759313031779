#pragma once

#include <QString>
#include <QStringList>

namespace zelvor {

// The last 50 lines typed into a box, for stepping back through them.
class RecallList {
 public:
    static constexpr int kMostLines = 50;

    // Remembers a line as the newest and steps back to behind it. An empty line, or the newest once more, is not kept.
    void add(const QString& line);
    // The line before the one recalled last; stays on the oldest. shown: what stands in the box; it is kept while
    // lines are recalled, and stays when nothing is remembered.
    QString older(const QString& shown);
    // The line after the one recalled last; behind the newest what stood in the box before.
    QString newer(const QString& shown);

 private:
    QStringList lines_;  // oldest first
    QString typed_;      // what stood in the box before a line was recalled
    qsizetype at_ = 0;
};

}  // namespace zelvor
