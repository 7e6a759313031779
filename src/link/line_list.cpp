#include "link/line_list.h"

#include <algorithm>
#include <utility>

namespace zelvor {

namespace {

// A text of this many characters keeps its memory for the next turn.
constexpr qsizetype kKeptText = qsizetype{64} * 1024;

}  // namespace

void LineList::Added::add(QStringView head, std::initializer_list<QStringView> rest, bool alarm) {
    const qsizetype start = text_.size();
    qsizetype end = start + head.size();
    for (const QStringView piece : rest) end += piece.size();
    text_.resize(end);
    QChar* to = std::copy(head.begin(), head.end(), text_.data() + start);
    for (const QStringView piece : rest) to = std::copy(piece.begin(), piece.end(), to);
    ends_.push_back({end, alarm});
}

void LineList::Added::clear() {
    if (text_.capacity() > kKeptText) text_ = QString();
    text_.resize(0);
    ends_.clear();
}

LineList::Line LineList::Added::line(size_t number) const {
    const qsizetype start = startOf(number);
    return {text_.mid(start, ends_[number].at - start), ends_[number].alarm};
}

void LineList::Added::dropOldest(size_t count) {
    const qsizetype dropped = startOf(count);
    text_.remove(0, dropped);
    ends_.erase(ends_.begin(), ends_.begin() + static_cast<std::ptrdiff_t>(count));
    for (End& end : ends_) end.at -= dropped;
}

LineList::LineList(Newest newest, QObject* parent) : QAbstractListModel(parent), newest_(newest) {}

void LineList::add(QStringView head, std::initializer_list<QStringView> rest, bool alarm) {
    added_.add(head, rest, alarm);
    // Twice as many are let in, so that the oldest go all at once.
    if (added_.count() == size_t{2} * kMostLines) added_.dropOldest(kMostLines);
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
    if (added_.count() > kMostLines) added_.dropOldest(added_.count() - kMostLines);
    if (added_.count() == 0) return;

    const bool first = newest_ == Newest::First;
    const int row = first ? 0 : rowCount();
    beginInsertRows({}, row, row + static_cast<int>(added_.count()) - 1);
    for (size_t number = 0; number < added_.count(); ++number) {
        if (first) {
            lines_.push_front(added_.line(number));
        } else {
            lines_.push_back(added_.line(number));
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
