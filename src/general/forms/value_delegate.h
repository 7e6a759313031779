#pragma once

#include <QStyledItemDelegate>

namespace zelvor {

// Shows and edits the cells of the general variables: plain text, a drop-down for choices, a "..." button for folders
// and files. The value of a changed row is bold.
class ValueDelegate : public QStyledItemDelegate {
    Q_OBJECT

 public:
    using QStyledItemDelegate::QStyledItemDelegate;

    // Where the button of a cell stands; empty when the cell has none.
    static QRect buttonArea(const QRect& cell, const QModelIndex& index);

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;
    bool editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                     const QModelIndex& index) override;

 Q_SIGNALS:
    void buttonPressed(const QModelIndex& index);

 protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
};

}  // namespace zelvor
