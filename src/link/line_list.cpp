#include "link/line_list.h"

#include <utility>

namespace zelvor {

LineList::LineList(Newest newest, QObject* parent) : QAbstractListModel(parent), newest_(newest) {}

void LineList::add(QString text, bool alarm) {
    added_.push_back({std::move(text), alarm});
    if (added_.size() > kMostLines) added_.pop_front();
    changeSoon();
}

void LineList::clear() {
    added_.clear();
    cleared_ = true;
    changeSoon();
}

void LineList::changeSoon() {
    if (!std::exchange(changesSoon_, true)) QMetaObject::invokeMethod(this, &LineList::change, Qt::QueuedConnection);
}

void LineList::change() {
    changesSoon_ = false;
    if (std::exchange(cleared_, false)) {
        beginResetModel();
        lines_.clear();
        endResetModel();
    }
    if (added_.empty()) return;

    const bool first = newest_ == Newest::First;
    const int row = first ? 0 : rowCount();
    beginInsertRows({}, row, row + static_cast<int>(added_.size()) - 1);
    for (Line& line : added_) {
        if (first) {
            lines_.push_front(std::move(line));
        } else {
            lines_.push_back(std::move(line));
        }
    }
    added_.clear();
    endInsertRows();
    const int excess = rowCount() - kMostLines;
    if (excess <= 0) return;

    const int oldest = first ? kMostLines : 0;
    beginRemoveRows({}, oldest, oldest + excess - 1);
    lines_.erase(lines_.begin() + oldest, lines_.begin() + oldest + excess);
    endRemoveRows();
}

QString LineList::text(int row) const {
    return row >= 0 && row < rowCount() ? lines_[static_cast<size_t>(row)].text : QString();
}

int LineList::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(lines_.size());
}

QVariant LineList::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid)) return {};
    const Line& line = lines_[static_cast<size_t>(index.row())];
    if (role == Qt::DisplayRole) return line.text;
    if (role == kAlarmRole) return line.alarm;
    return {};
}

}  // namespace zelvor
