#include "console/find_box.h"

#include <QAbstractListModel>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPainter>
#include <QStyledItemDelegate>
#include <QVBoxLayout>

#include "base/translate.h"
#include "console/theme.h"

using namespace Qt::StringLiterals;

namespace zelvor {

class FindModel : public QAbstractListModel {
 public:
    static constexpr int kWhereRole = Qt::UserRole;

    using QAbstractListModel::QAbstractListModel;

    void show(std::vector<const FindEntry*> entries) {
        beginResetModel();
        entries_ = std::move(entries);
        endResetModel();
    }
    [[nodiscard]] const FindEntry& entry(const QModelIndex& index) const { return *entries_.at(index.row()); }

    [[nodiscard]] int rowCount(const QModelIndex& parent) const override {
        return parent.isValid() ? 0 : static_cast<int>(entries_.size());
    }
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override {
        const FindEntry& each = entry(index);
        if (role == Qt::DisplayRole) return each.caption;
        if (role == kWhereRole) return each.where;
        if (role == Qt::AccessibleTextRole) return QString(each.caption + u", "_s + each.where);
        return {};
    }

 private:
    std::vector<const FindEntry*> entries_;
};

namespace {

constexpr QSize kBox{620, 420};

// Caption at the left, where it stands at the right.
class FindDelegate : public QStyledItemDelegate {
 public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        const bool chosen = option.state.testFlag(QStyle::State_Selected);
        if (chosen) painter->fillRect(option.rect, theme::colour(theme::Role::Accent));
        const QRect room = option.rect.adjusted(8, 0, -8, 0);
        const QRect left = room.adjusted(0, 0, -room.width() * 2 / 5, 0);
        const QRect right(left.right() + 8, room.top(), room.right() - left.right() - 8, room.height());
        const auto write = [&](const QRect& area, Qt::Alignment side, const QString& text) {
            painter->drawText(area, static_cast<int>(side | Qt::AlignVCenter | Qt::TextSingleLine),
                              option.fontMetrics.elidedText(text, Qt::ElideRight, area.width()));
        };
        painter->setPen(chosen ? theme::readableOn(theme::colour(theme::Role::Accent))
                               : theme::colour(theme::Role::Text));
        write(left, Qt::AlignLeft, index.data().toString());
        if (!chosen) painter->setPen(theme::colour(theme::Role::Muted));
        write(right, Qt::AlignRight, index.data(FindModel::kWhereRole).toString());
    }
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const override {
        return {option.rect.width(), option.fontMetrics.height() + 8};
    }
};

}  // namespace

FindBox::FindBox(QWidget& console)
    : QDialog(&console), model_(new FindModel(this)), typed_(new QLineEdit), view_(new QListView) {
    setObjectName(u"frmFIND"_s);
    setWindowTitle(translate("console", "Find"));
    typed_->setObjectName(u"txtFIND"_s);
    typed_->setPlaceholderText(translate("console", "Card, key, script, command or variable"));
    typed_->setAccessibleName(translate("console", "What to find"));
    typed_->installEventFilter(this);
    view_->setObjectName(u"lstFIND"_s);
    view_->setAccessibleName(translate("console", "Found"));
    view_->setModel(model_);
    view_->setItemDelegate(new FindDelegate(this));
    view_->setUniformItemSizes(true);
    view_->setFocusPolicy(Qt::NoFocus);
    auto* help = new QLabel(translate("console", "Enter fires, Shift+Enter fires and asks, Esc leaves"));
    auto* column = new QVBoxLayout(this);
    column->addWidget(typed_);
    column->addWidget(view_, 1);
    column->addWidget(help);
    connect(typed_, &QLineEdit::textChanged, this, &FindBox::narrow);
    connect(view_, &QListView::clicked, this, [this] { choose(false); });
}

void FindBox::showWith(FindList list) {
    list_.emplace(std::move(list));
    typed_->clear();
    narrow();
    const QRect over = parentWidget()->geometry();
    resize(kBox.boundedTo(over.size()));
    move(over.center().x() - width() / 2, over.top() + (over.height() - height()) / 4);
    show();
    raise();
    activateWindow();
    typed_->setFocus();
}

void FindBox::narrow() {
    model_->show(list_->narrowed(typed_->text()));
    view_->setCurrentIndex(model_->index(0));
}

void FindBox::choose(bool asks) {
    if (!view_->currentIndex().isValid()) return;
    const FindEntry entry = model_->entry(view_->currentIndex());
    close();
    Q_EMIT chosen(entry, asks);
}

bool FindBox::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress) return QDialog::eventFilter(watched, event);
    const auto* key = static_cast<QKeyEvent*>(event);
    switch (key->key()) {
        case Qt::Key_Up:
        case Qt::Key_Down:
        case Qt::Key_PageUp:
        case Qt::Key_PageDown:
            QCoreApplication::sendEvent(view_, event);
            return true;
        case Qt::Key_Return:
        case Qt::Key_Enter:
            choose(key->modifiers().testFlag(Qt::ShiftModifier));
            return true;
        default:
            return false;
    }
}

void FindBox::changeEvent(QEvent* event) {
    if (event->type() == QEvent::ActivationChange && isVisible() && !isActiveWindow()) close();
    QDialog::changeEvent(event);
}

}  // namespace zelvor
