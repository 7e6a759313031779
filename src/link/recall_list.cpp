#include "link/recall_list.h"

#include <algorithm>

namespace zelvor {

void RecallList::add(const QString& line) {
    const bool kept = !line.isEmpty() && (lines_.isEmpty() || lines_.last() != line);
    if (kept) lines_ += line;
    if (lines_.size() > kMostLines) lines_.removeFirst();
    at_ = lines_.size();
}

QString RecallList::older() {
    at_ = std::max<qsizetype>(at_ - 1, 0);
    return lines_.value(at_);
}

QString RecallList::newer() {
    at_ = std::min(at_ + 1, lines_.size());
    return lines_.value(at_);
}

}  // namespace zelvor
