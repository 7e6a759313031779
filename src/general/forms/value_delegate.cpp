#include "general_forms/value_delegate.h"

#include <QComboBox>
#include <QMouseEvent>
#include <QPainter>

#include "general_rules/general_grid.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

constexpr int kButtonWidth = 26;

GeneralCell::Kind kindOf(const QModelIndex& index) {
    return static_cast<GeneralCell::Kind>(index.data(GeneralGrid::KindRole).toInt());
}

}  // namespace

QRect ValueDelegate::buttonArea(const QRect& cell, const QModelIndex& index) {
    if (kindOf(index) == GeneralCell::Kind::Plain) return {};
    return cell.adjusted(cell.width() - kButtonWidth, 2, -2, -2);
}

void ValueDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const {
    QStyledItemDelegate::initStyleOption(option, index);
    option->font.setBold(index.data(GeneralGrid::ChangedRole).toBool());
}

void ValueDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
    const QRect button = buttonArea(option.rect, index);
    if (button.isEmpty()) {
        QStyledItemDelegate::paint(painter, option, index);
        return;
    }
    QStyleOptionViewItem text = option;
    text.rect.setRight(button.left() - 2);
    QStyledItemDelegate::paint(painter, text, index);
    painter->save();
    painter->setPen(option.palette.color(QPalette::Mid));
    painter->setBrush(option.palette.brush(QPalette::Button));
    painter->drawRect(button);
    painter->setPen(option.palette.color(QPalette::ButtonText));
    painter->drawText(button, Qt::AlignCenter, kindOf(index) == GeneralCell::Kind::Choice ? u"▾"_s : u"..."_s);
    painter->restore();
}

QWidget* ValueDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                                     const QModelIndex& index) const {
    if (kindOf(index) != GeneralCell::Kind::Choice) return QStyledItemDelegate::createEditor(parent, option, index);
    auto* list = new QComboBox(parent);
    list->addItems(index.data(GeneralGrid::ChoicesRole).toStringList());
    connect(list, &QComboBox::activated, this, [self = const_cast<ValueDelegate*>(this), list] {
        Q_EMIT self->commitData(list);
        Q_EMIT self->closeEditor(list);
    });
    return list;
}

void ValueDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const {
    auto* list = qobject_cast<QComboBox*>(editor);
    if (list == nullptr) {
        QStyledItemDelegate::setEditorData(editor, index);
        return;
    }
    list->setCurrentIndex(list->findText(index.data().toString()));
}

void ValueDelegate::setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const {
    auto* list = qobject_cast<QComboBox*>(editor);
    if (list == nullptr) {
        QStyledItemDelegate::setModelData(editor, model, index);
    } else if (list->currentIndex() >= 0) {
        // A value outside of its list stays until one is chosen.
        model->setData(index, list->currentText(), Qt::EditRole);
    }
}

bool ValueDelegate::editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                                const QModelIndex& index) {
    if (event->type() == QEvent::MouseButtonRelease) {
        const auto* mouse = static_cast<const QMouseEvent*>(event);
        if (mouse->button() == Qt::LeftButton && buttonArea(option.rect, index).contains(mouse->position().toPoint())) {
            Q_EMIT buttonPressed(index);
            return true;
        }
    }
    return QStyledItemDelegate::editorEvent(event, model, option, index);
}

}  // namespace zelvor
