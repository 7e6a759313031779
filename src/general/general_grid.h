#pragma once

#include <QAbstractTableModel>
#include <optional>
#include <vector>

#include "general_rules/general_cell.h"
#include "general_rules/grid_file.h"

namespace zelvor {

// The rows of the general variables (vsDATA) with their marks. Only values change in place; title, name and help are
// frozen against slips of the hand.
class GeneralGrid : public QAbstractTableModel {
    Q_OBJECT

 public:
    enum Role {
        // A cell's GeneralCell::Kind as a number, and its choices as a list of texts.
        KindRole = Qt::UserRole,
        ChoicesRole,
        // True for the value of a row that was changed since it was loaded.
        ChangedRole,
    };

    [[nodiscard]] std::vector<GeneralRow> rows() const;
    [[nodiscard]] QString text(int row, int column) const { return rows_.at(row).now.at(column); }
    [[nodiscard]] GeneralCell cell(int row) const { return GeneralCell(text(row, general_column::kValue)); }

    // Replaces all rows by those of the file. isInForce(row) tells whether the row's variable holds its value already.
    template <class IsInForce>
    void setLoaded(const std::vector<GeneralRow>& rows, IsInForce&& isInForce) {
        beginResetModel();
        rows_.clear();
        removedUnsaved_ = 0;
        for (const GeneralRow& row : rows)
            rows_.push_back({row, row, row, isInForce(row) ? std::optional(row) : std::nullopt});
        lookForFaults();
        endResetModel();
    }
    // Adds rows at the end: changed, unsaved and unapplied.
    void append(const std::vector<GeneralRow>& rows);
    // Gives a row's value cell another value; its marker or its list stays.
    void setValue(int row, const QString& value);
    // The same with a picked folder or file, its "\" turned into "/"; an empty path leaves the cell as it was.
    void setPicked(int row, QString path);

    // What is wrong with a row, in words; empty for a sound one.
    [[nodiscard]] const QString& fault(int row) const { return faults_.at(row); }

    void markSaved();
    void markApplied();
    [[nodiscard]] bool isChanged(int row) const { return rows_.at(row).loaded != rows_.at(row).now; }
    [[nodiscard]] bool isUnsaved(int row) const { return rows_.at(row).saved != rows_.at(row).now; }
    [[nodiscard]] bool isUnapplied(int row) const { return rows_.at(row).applied != rows_.at(row).now; }
    [[nodiscard]] bool hasUnsaved() const;
    // Rows taken away that the saved file still holds.
    [[nodiscard]] int removedUnsaved() const { return removedUnsaved_; }

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    // The column's header, or the row's marks and what is wrong with it in words.
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    bool removeRows(int row, int count, const QModelIndex& parent = {}) override;

 Q_SIGNALS:
    // A value that was typed is not taken; why, in words.
    void refused(const QString& words);

 private:
    struct Entry {
        GeneralRow now;
        std::optional<GeneralRow> loaded;
        std::optional<GeneralRow> saved;
        std::optional<GeneralRow> applied;
    };
    void showMarks();
    void lookForFaults();

    std::vector<Entry> rows_;
    std::vector<QString> faults_;
    int removedUnsaved_ = 0;
};

}  // namespace zelvor
