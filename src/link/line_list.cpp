#include "link/line_list.h"

namespace zelvor {

LineList::LineList(Newest newest, QObject* parent) : QAbstractListModel(parent), newest_(newest) {}

void LineList::add(const QString& text, bool alarm) {
    const bool first = newest_ == Newest::First;
    const int row = first ? 0 : rowCount();
    beginInsertRows({}, row, row);
    if (first) {
        lines_.push_front({text, alarm});
    } else {
        lines_.push_back({text, alarm});
    }
    endInsertRows();
    if (rowCount() <= kMostLines) return;

    const int oldest = first ? rowCount() - 1 : 0;
    beginRemoveRows({}, oldest, oldest);
    if (first) {
        lines_.pop_back();
    } else {
        lines_.pop_front();
    }
    endRemoveRows();
}

void LineList::clear() {
    beginResetModel();
    lines_.clear();
    endResetModel();
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
