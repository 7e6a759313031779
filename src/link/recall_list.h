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
    // The line before the one recalled last; stays on the oldest. Empty when nothing is remembered.
    QString older();
    // The line after the one recalled last; empty behind the newest.
    QString newer();

 private:
    QStringList lines_;  // oldest first
    qsizetype at_ = 0;
};

}  // namespace zelvor
