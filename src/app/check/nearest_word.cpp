#include "app_check/nearest_word.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace zelvor {

namespace {

// The number of single changes between two words; two neighbours swapped are one change.
int changesBetween(QStringView a, QStringView b) {
    const auto width = static_cast<size_t>(b.size()) + 1;
    std::vector<int> beforeLast;
    std::vector<int> last(width);
    std::vector<int> row(width);
    for (size_t j = 0; j < width; ++j) row[j] = static_cast<int>(j);
    for (qsizetype i = 1; i <= a.size(); ++i) {
        beforeLast = std::exchange(last, row);
        row[0] = static_cast<int>(i);
        for (qsizetype j = 1; j <= b.size(); ++j) {
            const auto at = static_cast<size_t>(j);
            const bool same = a[i - 1] == b[j - 1];
            row[at] = std::min({last[at] + 1, row[at - 1] + 1, last[at - 1] + (same ? 0 : 1)});
            const bool swapped = i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1];
            if (swapped) row[at] = std::min(row[at], beforeLast[at - 2] + 1);
        }
    }
    return row.back();
}

}  // namespace

QString nearestWord(const QString& word, const QStringList& known) {
    const qsizetype most = std::max<qsizetype>(1, word.size() / 3);
    QString nearest;
    qsizetype fewest = most + 1;
    for (const QString& candidate : known) {
        if (qAbs(candidate.size() - word.size()) > most) continue;
        const int changes = changesBetween(word, candidate);
        if (changes >= fewest) continue;
        fewest = changes;
        nearest = candidate;
    }
    return nearest;
}

}  // namespace zelvor
