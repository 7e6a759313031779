#include "console/boxes.h"

#include <QApplication>
#include <QCheckBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QEventLoop>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>
#include <algorithm>

#include "console/theme.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

constexpr int kLongText = 12;  // lines; beyond them the text scrolls

using Severity = Operator::Severity;

QString severityWord(Severity severity) {
    switch (severity) {
        case Severity::Information:
            return {};
        case Severity::Warning:
            return u"Warning"_s;
        case Severity::Critical:
            return u"Error"_s;
    }
    return {};
}

// The text of a box: a label, or a scrolling view when it is long.
QWidget* textPart(const QString& text) {
    if (text.count(u'\n') < kLongText) {
        auto* label = new QLabel(text);
        label->setObjectName(u"text"_s);
        label->setTextFormat(Qt::PlainText);
        label->setTextInteractionFlags(Qt::TextSelectableByMouse);
        label->setWordWrap(true);
        label->setMinimumWidth(360);
        return label;
    }
    auto* view = new QPlainTextEdit(text);
    view->setObjectName(u"text"_s);
    view->setReadOnly(true);
    view->setMinimumSize(560, 360);
    return view;
}

// Puts the text on top of an empty dialog; the caller adds what is answered with.
struct Box {
    QDialog& dialog;
    QVBoxLayout* column;
    QDialogButtonBox* buttons;

    Box(QDialog& empty, const QString& title, const QString& text, QDialogButtonBox::StandardButtons wanted)
        : dialog(empty), column(new QVBoxLayout(&dialog)), buttons(new QDialogButtonBox(wanted)) {
        dialog.setWindowTitle(title.isEmpty() ? u"Zelvor Cards"_s : title);
        column->setContentsMargins(20, 16, 20, 16);
        column->setSpacing(14);
        if (!title.isEmpty()) {
            auto* heading = new QLabel(title);
            heading->setFont(theme::font(15, true));
            column->addWidget(heading);
        }
        column->addWidget(textPart(text));
        QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
        QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    }
    Box(const Box&) = delete;
    Box& operator=(const Box&) = delete;
};

void addSeverity(Box& box, Severity severity) {
    const QString word = severityWord(severity);
    if (word.isEmpty()) return;
    auto* label = new QLabel(word);
    label->setFont(theme::font(15, true));
    QPalette look = label->palette();
    look.setColor(QPalette::WindowText,
                  theme::colour(severity == Severity::Critical ? theme::Role::Bad : theme::Role::Wait));
    label->setPalette(look);
    box.column->insertWidget(0, label);
}

}  // namespace

// The window that the operator is in: a box over another one would bring that one before it. Between two boxes no
// window is active yet.
QWidget* Boxes::over() {
    if (state_.unattendedRuns > 0) return window_;
    QWidget* active = QApplication::activeWindow();
    while (active != nullptr && active->parentWidget() != nullptr) active = active->parentWidget()->window();
    if (active != nullptr) used_ = active;
    return used_ && used_->isVisible() ? used_ : window_;
}

bool Boxes::run(QDialog& box) {
    if (state_.closing) return false;
    open_.emplace_back(&box);
    Q_EMIT opened(&box);
    if (state_.unattendedRuns > 0) {
        QEventLoop closed;
        connect(&box, &QDialog::finished, &closed, &QEventLoop::quit);
        box.setAttribute(Qt::WA_ShowWithoutActivating);
        box.show();
        closed.exec();
    } else {
        box.setWindowModality(Qt::ApplicationModal);
        box.exec();
    }
    std::erase_if(open_, [&](const QPointer<QDialog>& each) { return each == &box; });
    return box.result() == QDialog::Accepted && !state_.closing;
}

// Neither the keyboard nor the timer waits for it. One at a time, so that a faulty card that runs ten times a second
// does not fill the screen.
void Boxes::showNotice(const QString& title, const QString& text, Severity severity) {
    const QString card = state_.unattendedCard;
    if (notice_ || state_.closing || quietCards_.contains(card)) return;
    notice_ = new QDialog(window_);
    notice_->setAttribute(Qt::WA_DeleteOnClose);
    notice_->setAttribute(Qt::WA_ShowWithoutActivating);
    Box box(*notice_, title, text, QDialogButtonBox::Ok);
    addSeverity(box, severity);
    auto* quiet = new QCheckBox(u"Do not show this again for this card until cards are reloaded"_s);
    quiet->setObjectName(u"quiet"_s);
    box.column->addWidget(quiet);
    connect(notice_, &QDialog::finished, this, [this, card, quiet] {
        if (quiet->isChecked()) quietCards_.insert(card);
    });
    box.column->addWidget(box.buttons);
    notice_->show();
    Q_EMIT opened(notice_);
}

void Boxes::message(const QString& title, const QString& text, Severity severity) {
    if (state_.unattendedRuns > 0) {
        showNotice(title, text, severity);
        return;
    }
    QDialog dialog(over());
    Box box(dialog, title, text, QDialogButtonBox::Ok);
    addSeverity(box, severity);
    box.column->addWidget(box.buttons);
    run(dialog);
}

bool Boxes::yesNo(const QString& title, const QString& text) {
    QDialog dialog(over());
    Box box(dialog, title, text, QDialogButtonBox::Yes | QDialogButtonBox::No);
    box.column->addWidget(box.buttons);
    return run(dialog);
}

std::optional<QString> Boxes::input(const QString& title, const QString& prompt, const QString& proposed) {
    QDialog dialog(over());
    Box box(dialog, title, prompt, QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    auto* field = new QLineEdit(proposed);
    field->setObjectName(u"answer"_s);
    field->setAccessibleName(title);
    box.column->addWidget(field);
    box.column->addWidget(box.buttons);
    field->selectAll();
    field->setFocus();
    return run(dialog) ? std::optional(field->text()) : std::nullopt;
}

void Boxes::closeAll() {
    if (notice_) notice_->close();
    // From the newest to the oldest: each ends inside the one below it.
    const std::deque<QPointer<QDialog>> newestFirst(open_.rbegin(), open_.rend());
    for (const QPointer<QDialog>& box : newestFirst) {
        if (box) box->reject();
    }
}

}  // namespace zelvor
