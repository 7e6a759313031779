#include "ask_dialog/ask_form.h"

#include <QEventLoop>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QTimer>
#include <QVBoxLayout>
#include <algorithm>

#include "ask_dialog/pick_list_view.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

constexpr int kRowsShown = 20;
constexpr int kWidth = 460;        // pixels
constexpr int kClosingCheck = 50;  // milliseconds

QString countText(size_t rows) {
    return rows == 1 ? u"1 row"_s : u"%1 rows"_s.arg(rows);
}

}  // namespace

AskForm::AskForm(PickList& list, const ShowState& state, QWidget* parent)
    : QDialog(parent), list_(list), unattended_(state.unattendedRuns > 0) {
    setObjectName(u"frmASK"_s);
    setWindowTitle(list.title());
    setModal(!unattended_);
    setAttribute(Qt::WA_ShowWithoutActivating, unattended_);

    auto* header = new QLabel(countText(list.rows().size()), this);
    header->setObjectName(u"lblASKCOUNT"_s);
    auto* view = new PickListView(list, this);
    auto* cancel = new QPushButton(u"Cancel"_s, this);
    cancel->setObjectName(u"cmdCANCEL"_s);
    cancel->setToolTip(u"Ends the card without an answer (Esc)"_s);
    cancel->setAutoDefault(false);  // Enter belongs to the list
    auto* column = new QVBoxLayout(this);
    column->addWidget(header);
    column->addWidget(view, 1);
    column->addWidget(cancel);

    connect(view, &PickListView::chosen, this, &AskForm::choose);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    auto* closingCheck = new QTimer(this);
    connect(closingCheck, &QTimer::timeout, this, [this, &state] {
        if (state.closing) reject();
    });
    closingCheck->start(kClosingCheck);

    view->setFocus();
    const int listHeight = view->heightForRows(kRowsShown);
    const int rest = header->sizeHint().height() + cancel->sizeHint().height() + 2 * column->spacing() +
                     column->contentsMargins().top() + column->contentsMargins().bottom();
    resize(kWidth, std::min(listHeight + rest, screen()->availableGeometry().height()));
    const QRect around = parent != nullptr ? parent->window()->frameGeometry() : screen()->availableGeometry();
    move(around.center() - rect().center());
}

void AskForm::choose(int row) {
    chosenRow_ = row;
    accept();
}

void AskForm::answer() {
    if (unattended_) {
        QEventLoop closed;
        connect(this, &QDialog::finished, &closed, &QEventLoop::quit);
        QDialog::show();
        closed.exec();
    } else {
        exec();
    }
    if (result() == QDialog::Accepted) {
        list_.choose(chosenRow_);
    } else {
        list_.cancel();
    }
}

void AskFormDialog::show() {
    PickList list(state_, database_, trap_);
    if (state_.closing) {
        list.cancel();
        return;
    }
    AskForm(list, state_, window_).answer();
}

}  // namespace zelvor
