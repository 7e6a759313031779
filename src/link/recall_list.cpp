#include "link/recall_list.h"

#include <algorithm>

namespace zelvor {

void RecallList::add(const QString& line) {
    const bool kept = !line.isEmpty() && (lines_.isEmpty() || lines_.last() != line);
    if (kept) lines_ += line;
    if (lines_.size() > kMostLines) lines_.removeFirst();
    at_ = lines_.size();
}

QString RecallList::older(const QString& shown) {
    if (lines_.isEmpty()) return shown;
    if (at_ == lines_.size()) typed_ = shown;
    at_ = std::max<qsizetype>(at_ - 1, 0);
    return lines_[at_];
}

QString RecallList::newer(const QString& shown) {
    if (at_ == lines_.size()) return shown;
    ++at_;
    return at_ == lines_.size() ? typed_ : lines_[at_];
}

}  // namespace zelvor
