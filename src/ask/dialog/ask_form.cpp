#include "ask_dialog/ask_form.h"

#include <QEventLoop>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>
#include <algorithm>

#include "ask_dialog/clear_button.h"
#include "ask_dialog/pick_list_view.h"
#include "base/translate.h"
#include "base/window_frame.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

constexpr int kRowsShown = 20;
constexpr int kWidth = 460;   // pixels
constexpr int kWidest = 900;  // pixels, for long rows

QString headerText(size_t rows) {
    const QString count = rows == 1 ? translate("ask", "1 row") : translate("ask", "%1 rows").arg(rows);
    return translate("ask", "%1: type a name or a number, then Enter. Esc ends the card.").arg(count);
}

Question questionOf(const PickList& list, const Asker& asker) {
    Question question{Question::Kind::List, asker, list.title()};
    question.choices.reserve(list.rows().size());
    for (const PickList::Row& row : list.rows()) question.choices.push_back({QString::number(row.key), row.text});
    return question;
}

// row: -1 cancels.
void answerList(PickList& list, int row) {
    row < 0 ? list.cancel() : list.choose(row);
}

}  // namespace

AskForm::AskForm(PickList& list, bool attended, Program& program, QWidget* parent)
    : QDialog(parent), list_(list), attended_(attended) {
    setObjectName(u"frmASK"_s);
    setWindowTitle(list.title());
    setModal(attended_);
    setAttribute(Qt::WA_ShowWithoutActivating, !attended_);

    auto* header = new QLabel(headerText(list.rows().size()), this);
    header->setObjectName(u"lblASKCOUNT"_s);
    auto* fault = new QLabel(list.fault(), this);
    fault->setObjectName(u"lblASKFAULT"_s);
    fault->setTextFormat(Qt::PlainText);
    fault->setWordWrap(true);
    fault->setVisible(!list.fault().isEmpty());
    auto* view = new PickListView(list, this);
    auto* cancel = new QPushButton(translate("ask", "Cancel"), this);
    cancel->setObjectName(u"cmdCANCEL"_s);
    cancel->setToolTip(translate("ask", "Ends the card without an answer (Esc)"));
    cancel->setAutoDefault(false);  // Enter belongs to the list
    auto* column = new QVBoxLayout(this);
    column->addWidget(header);
    column->addWidget(fault);
    column->addWidget(view, 1);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(makeClearButton(program.clearing));
    buttons->addWidget(cancel, 1);
    column->addLayout(buttons);

    connect(view, &PickListView::chosen, this, &AskForm::choose);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(&program.closing, &Closing::begun, this, &QDialog::reject);
    connect(&program.clearing, &Clearing::begun, this, &QDialog::reject);

    view->setFocus();
    const int listHeight = view->heightForRows(kRowsShown);
    const int rest = header->sizeHint().height() + cancel->sizeHint().height() + 2 * column->spacing() +
                     column->contentsMargins().top() + column->contentsMargins().bottom();
    const int margins = column->contentsMargins().left() + column->contentsMargins().right();
    const QSize wanted(std::clamp(view->widthForRows() + margins, kWidth, kWidest), listHeight + rest);
    resize(wanted.boundedTo(screen()->availableSize() - kWindowFrame));
    const QRect around = parent != nullptr ? parent->window()->frameGeometry() : screen()->availableGeometry();
    move(around.center() - rect().center());
}

void AskForm::choose(int row) {
    chosenRow_ = row;
    accept();
}

void AskForm::answer() {
    if (attended_) {
        exec();
    } else {
        QEventLoop closed;
        connect(this, &QDialog::finished, &closed, &QEventLoop::quit);
        QDialog::show();
        closed.exec();
    }
    answerList(list_, result() == QDialog::Accepted ? chosenRow_ : -1);
}

void AskFormDialog::show(const Asker& asker) {
    PickList list(state_, database_, program_.trap, asker);
    if (list.isGivenUp() || program_.closing.hasBegun()) {
        list.cancel();
        return;
    }
    const Question question = questionOf(list, asker);
    const int clearings = program_.clearing.count();
    if (const auto given = program_.questions.answeredBeforehand(question)) {
        answerList(list, question.choice(*given));
    } else {
        AskForm form(list, asker.isAttended(), program_, window_);
        const Questions::Standing standing(program_.questions, question, [&](const QString& answer) {
            const int row = question.choice(answer);
            row < 0 ? form.reject() : form.choose(row);
        });
        form.answer();
    }
    if (program_.clearing.count() != clearings) return;
    const bool cancelled = state_.ask.ASK_CANCELLED == AskState::kYes;
    program_.questions.tellAnswer(question, cancelled ? Question::kCancel : state_.ask.ASK_RESULT);
}

}  // namespace zelvor
