#include "general_rules/general_grid.h"

#include <algorithm>

#include "base/translate.h"
#include "general_rules/row_faults.h"

using namespace Qt::StringLiterals;

namespace zelvor {

using namespace general_column;

std::vector<GeneralRow> GeneralGrid::rows() const {
    std::vector<GeneralRow> rows;
    rows.reserve(rows_.size());
    for (const Entry& entry : rows_) rows.push_back(entry.now);
    return rows;
}

void GeneralGrid::append(const std::vector<GeneralRow>& rows) {
    if (rows.empty()) return;
    const int first = rowCount();
    beginInsertRows({}, first, first + static_cast<int>(rows.size()) - 1);
    for (const GeneralRow& row : rows) rows_.push_back({row, std::nullopt, std::nullopt, std::nullopt});
    lookForFaults();
    endInsertRows();
    showMarks();
}

void GeneralGrid::setValue(int row, const QString& value) {
    const QString text = cell(row).withValue(value);
    if (text == rows_.at(row).now[kValue]) return;
    rows_[row].now[kValue] = text;
    lookForFaults();
    Q_EMIT dataChanged(index(row, 0), index(row, kCount - 1));
    Q_EMIT headerDataChanged(Qt::Vertical, row, row);
}

void GeneralGrid::setPicked(int row, QString path) {
    if (!path.isEmpty()) setValue(row, path.replace(u'\\', u'/'));
}

void GeneralGrid::showMarks() {
    if (rows_.empty()) return;
    Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, kCount - 1));
    Q_EMIT headerDataChanged(Qt::Vertical, 0, rowCount() - 1);
}

void GeneralGrid::markSaved() {
    for (Entry& entry : rows_) entry.saved = entry.now;
    removedUnsaved_ = 0;
    showMarks();
}

void GeneralGrid::markApplied() {
    for (Entry& entry : rows_) entry.applied = entry.now;
    showMarks();
}

void GeneralGrid::lookForFaults() {
    faults_ = rowFaults(rows());
}

bool GeneralGrid::hasUnsaved() const {
    return removedUnsaved_ > 0 ||
           std::any_of(rows_.begin(), rows_.end(), [](const Entry& entry) { return entry.saved != entry.now; });
}

int GeneralGrid::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int GeneralGrid::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : kCount;
}

QVariant GeneralGrid::data(const QModelIndex& index, int role) const {
    const int row = index.row();
    switch (role) {
        case Qt::DisplayRole:
        case Qt::EditRole:
            return index.column() == kValue ? cell(row).value() : text(row, index.column());
        case Qt::ToolTipRole:
            return text(row, kHelp);
        case KindRole:
            return static_cast<int>(index.column() == kValue ? cell(row).kind() : GeneralCell::Kind::Plain);
        case ChoicesRole:
            return index.column() == kValue ? cell(row).choices() : QStringList();
        case ChangedRole:
            return index.column() == kValue && isChanged(row);
        default:
            return {};
    }
}

QVariant GeneralGrid::headerData(int section, Qt::Orientation orientation, int role) const {
    const bool isTip = orientation == Qt::Vertical && role == Qt::ToolTipRole;  // where there is no room for all
    if (role != Qt::DisplayRole && !isTip) return {};
    if (orientation == Qt::Horizontal) {
        return QStringList{translate("general", "Value"), translate("general", "Title"),
                           translate("general", "Variable"), translate("general", "Help")}
            .at(section);
    }
    QStringList marks;
    if (isChanged(section)) marks += translate("general", "changed");
    if (isUnsaved(section)) marks += translate("general", "not saved");
    if (isUnapplied(section)) marks += translate("general", "not applied");
    if (!faults_[section].isEmpty()) marks += faults_[section];
    return marks.isEmpty() ? QString::number(section + 1) : marks.join(u", "_s);
}

Qt::ItemFlags GeneralGrid::flags(const QModelIndex& index) const {
    const Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    return index.column() == kValue ? flags | Qt::ItemIsEditable : flags;
}

bool GeneralGrid::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (!index.isValid() || index.column() != kValue || role != Qt::EditRole) return false;
    const QString typed = value.toString();
    if (!GeneralCell::isWellFormed(typed)) {
        Q_EMIT refused(
            translate("general", "\"%1\" is not taken: a choice is written VALUE:CHOICE|CHOICE, as in ON:ON|OFF.")
                .arg(typed));
        return false;
    }
    setValue(index.row(), typed);
    return true;
}

bool GeneralGrid::removeRows(int row, int count, const QModelIndex& parent) {
    if (parent.isValid() || row < 0 || count < 1 || row + count > rowCount()) return false;
    const auto first = rows_.begin() + row;
    removedUnsaved_ += static_cast<int>(
        std::count_if(first, first + count, [](const Entry& entry) { return entry.saved.has_value(); }));
    beginRemoveRows({}, row, row + count - 1);
    rows_.erase(first, first + count);
    lookForFaults();
    endRemoveRows();
    showMarks();
    return true;
}

}  // namespace zelvor
