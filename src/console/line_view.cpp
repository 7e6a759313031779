#include "console/line_view.h"

#include <QPainter>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <QTimer>
#include <utility>

#include "console/theme.h"
#include "link/line_list.h"

namespace zelvor {

namespace {

class LineDelegate : public QStyledItemDelegate {
 public:
    using QStyledItemDelegate::QStyledItemDelegate;

    // The beginning of a line, wider than any screen: measuring a whole one that a server sent without a line end would
    // hold up the cards.
    [[nodiscard]] QString displayText(const QVariant& line, const QLocale&) const override {
        constexpr int kMostShown = 1000;
        return line.toString().left(kMostShown);
    }

 protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
        QStyledItemDelegate::initStyleOption(option, index);
        if (!index.data(LineList::kAlarmRole).toBool()) return;
        option->palette.setColor(QPalette::Text, theme::colour(theme::Role::Bad));
        option->font.setBold(true);
    }
};

}  // namespace

LineView::LineView(QAbstractItemModel& lines, Newest newest, QWidget* parent) : QListView(parent), newest_(newest) {
    setModel(&lines);
    setItemDelegate(new LineDelegate(this));
    setFont(theme::font(12));
    // Every line is of the same height: a full list costs no more than an empty one.
    setUniformItemSizes(true);
    setTextElideMode(Qt::ElideRight);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setMinimumHeight(48);
    connect(this, &QListView::clicked, this,
            [this](const QModelIndex& index) { Q_EMIT lineClicked(index.data().toString()); });
    if (newest_ == Newest::OnTop) return;

    connect(&lines, &QAbstractItemModel::rowsAboutToBeInserted, this, [this] {
        const QScrollBar* bar = verticalScrollBar();
        if (!followsSoon_) following_ = bar->value() >= bar->maximum() - 1;
    });
    connect(&lines, &QAbstractItemModel::rowsInserted, this, [this] {
        // A hidden view scrolls when it is shown.
        if (following_ && isVisible()) followSoon();
    });
    connect(verticalScrollBar(), &QScrollBar::valueChanged, this, [this](int value) {
        if (followsSoon_ && value < verticalScrollBar()->maximum() - 1) following_ = false;
    });
    // The oldest lines go as new ones come; the bar counts lines.
    connect(&lines, &QAbstractItemModel::rowsRemoved, this, [this](const QModelIndex&, int first, int last) {
        if (!following_ && first == 0) verticalScrollBar()->setValue(verticalScrollBar()->value() - (last + 1));
    });
}

// Once for all lines that a card writes: to lay the list out for each would hold up what the card sends.
void LineView::followSoon() {
    if (std::exchange(followsSoon_, true)) return;
    QTimer::singleShot(0, this, [this] {
        followsSoon_ = false;
        if (following_) scrollToBottom();
    });
}

void LineView::showEvent(QShowEvent* event) {
    QListView::showEvent(event);
    if (newest_ == Newest::AtBottom && following_) scrollToBottom();
}

}  // namespace zelvor
