#include "ask_dialog/pick_list_view.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QScrollBar>
#include <QToolTip>
#include <algorithm>

namespace zelvor {

PickListView::PickListView(const PickList& list, QWidget* parent) : QListWidget(parent), list_(list) {
    setObjectName(QStringLiteral("lstASK"));
    setUniformItemSizes(true);
    setTextElideMode(Qt::ElideRight);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    for (const PickList::Row& row : list.rows()) addItem(row.text);
    setCurrentRow(0);
    sinceOpened_.start();
    connect(this, &QListWidget::itemDoubleClicked, this, [this](QListWidgetItem* item) { Q_EMIT chosen(row(item)); });
}

int PickListView::heightForRows(int rows) const {
    const int rowHeight = count() > 0 ? sizeHintForRow(0) : fontMetrics().height() + 4;
    return rows * rowHeight + 2 * frameWidth();
}

int PickListView::widthForRows() const {
    // The row with the most characters: measuring thousands would hold the window's opening.
    const auto& rows = list_.rows();
    const auto longest =
        std::ranges::max_element(rows, {}, [](const PickList::Row& row) { return row.text.size(); }) - rows.begin();
    const int widest = count() > 0 ? sizeHintForIndex(model()->index(static_cast<int>(longest), 0)).width() : 0;
    return widest + verticalScrollBar()->sizeHint().width() + 2 * frameWidth();
}

bool PickListView::viewportEvent(QEvent* event) {
    if (event->type() != QEvent::ToolTip) return QListWidget::viewportEvent(event);
    const auto* help = static_cast<QHelpEvent*>(event);
    const QListWidgetItem* item = itemAt(help->pos());
    const bool elided = item != nullptr && sizeHintForIndex(indexFromItem(item)).width() > viewport()->width();
    QToolTip::showText(help->globalPos(), elided ? item->text().toHtmlEscaped() : QString(), viewport());
    return true;
}

void PickListView::keyboardSearch(const QString& typed) {
    const int found = list_.find(typeAhead_.add(typed, std::chrono::milliseconds(sinceOpened_.elapsed())));
    if (found >= 0) setCurrentRow(found);
}

void PickListView::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        if (currentRow() >= 0) Q_EMIT chosen(currentRow());
        return;
    }
    QListWidget::keyPressEvent(event);
}

}  // namespace zelvor
