#include "console/boxes.h"

#include <QApplication>
#include <QCheckBox>
#include <QCloseEvent>
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

#include "ask_dialog/clear_button.h"
#include "base/translate.h"
#include "console/theme.h"
#include "engine/card_engine.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

constexpr int kLongText = 1000;       // characters; beyond them the text scrolls
constexpr QSize kTextRoom{520, 220};  // pixels that a text takes that is not scrolled
constexpr int kTextWidth = 360;       // pixels, of a text that is not higher then
constexpr int kTabbedLine = 40;       // characters

using Severity = Operator::Severity;

QString severityWord(Severity severity) {
    switch (severity) {
        case Severity::Information:
            return {};
        case Severity::Warning:
            return translate("console", "Warning");
        case Severity::Critical:
            return translate("console", "Error");
    }
    return {};
}

// Can be selected from when the mouse reaches it: as a document it would take longer to be shown.
class BoxText : public QLabel {
 public:
    using QLabel::QLabel;

 protected:
    void enterEvent(QEnterEvent* event) override {
        setTextInteractionFlags(Qt::TextSelectableByMouse);
        QLabel::enterEvent(event);
    }
};

// A label cuts a word that is wider than itself, and loses what follows a tab in a line that it wraps.
bool fitsLabel(const QString& text, const QFont& font) {
    if (text.size() > kLongText) return false;
    const QStringList lines = text.split(u'\n');
    if (std::any_of(lines.begin(), lines.end(),
                    [](const QString& line) { return line.size() > kTabbedLine && line.contains(u'\t'); }))
        return false;
    const QSize taken = QFontMetrics(font).boundingRect(QRect({}, kTextRoom), Qt::TextWordWrap, text).size();
    return taken.width() <= kTextRoom.width() && taken.height() <= kTextRoom.height();
}

// The text of a box: a label, or a scrolling view where that would not show all of it.
QWidget* textPart(const QString& text) {
    if (fitsLabel(text, QApplication::font())) {
        auto* label = new BoxText(text);
        label->setObjectName(u"text"_s);
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
        // A box opens no higher than two thirds of the screen, whatever its text needs.
        const bool isLow = label->heightForWidth(kTextWidth) <= kTextRoom.height();
        const int width = isLow ? kTextWidth : kTextRoom.width();
        label->setMinimumSize(width, label->heightForWidth(width));
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

// A question of the start comes before the window, or keeps it from closing: its own close button ends the program.
class AnswerBox : public QDialog {
 public:
    AnswerBox(QWidget* over, const Asker& asker, Closing& closing)
        : QDialog(over), closing_(asker.kind == Asker::Kind::StartUp ? &closing : nullptr) {}

 protected:
    void closeEvent(QCloseEvent* event) override {
        if (closing_ != nullptr && event->spontaneous()) closing_->begin();
        QDialog::closeEvent(event);
    }

 private:
    Closing* closing_;
};

// What it is answered with, and CLEAR, which the box would keep from the operator; while the console starts there is
// nothing to clear.
void addButtons(Box& box, const Asker& asker, Clearing& clearing) {
    if (asker.kind != Asker::Kind::StartUp)
        box.buttons->addButton(makeClearButton(clearing), QDialogButtonBox::ResetRole);
    box.column->addWidget(box.buttons);
}

}  // namespace

// The window that the operator is in: a box over another one would bring that one before it. Between two boxes no
// window is active yet.
QWidget* Boxes::over(const Asker& asker) {
    if (!asker.isAttended()) return window_;
    QWidget* active = QApplication::activeWindow();
    while (active != nullptr && active->parentWidget() != nullptr) active = active->parentWidget()->window();
    if (active != nullptr) used_ = active;
    return used_ && used_->isVisible() ? used_ : window_;
}

bool Boxes::run(const Question& question, QDialog& box) {
    if (program_.closing.hasBegun()) return false;
    const Asker& asker = question.asker;
    const Questions::Standing standing(program_.questions, question, [&box](const QString& answer) {
        if (auto* field = box.findChild<QLineEdit*>(u"answer"_s)) field->setText(answer);
        const bool accepts = answer != Question::kCancel && answer != Question::kNo;
        box.done(accepts ? QDialog::Accepted : QDialog::Rejected);
    });
    connect(&program_.closing, &Closing::begun, &box, &QDialog::reject);
    connect(&program_.clearing, &Clearing::begun, &box, &QDialog::reject);
    Q_EMIT opened(&box);
    if (asker.isAttended()) {
        box.setWindowModality(Qt::ApplicationModal);
        box.exec();
    } else {
        QEventLoop closed;
        connect(&box, &QDialog::finished, &closed, &QEventLoop::quit);
        box.setAttribute(Qt::WA_ShowWithoutActivating);
        box.show();
        closed.exec();
    }
    return box.result() == QDialog::Accepted && !program_.closing.hasBegun();
}

// Neither the keyboard nor the timer waits for it. One at a time, so that a faulty card that runs ten times a second
// does not fill the screen.
void Boxes::showNotice(const QString& card, const QString& title, const QString& text, Severity severity) {
    if (program_.closing.hasBegun()) return;
    if (notice_ || quietCards_.contains(card)) {
        countSilenced(card.isEmpty() ? title : card);
        return;
    }
    notice_ = new QDialog(window_);
    connect(&program_.closing, &Closing::begun, notice_, &QDialog::close);
    notice_->setAttribute(Qt::WA_DeleteOnClose);
    notice_->setAttribute(Qt::WA_ShowWithoutActivating);
    Box box(*notice_, title, text, QDialogButtonBox::Ok);
    addSeverity(box, severity);
    if (!card.isEmpty()) {
        auto* quiet =
            new QCheckBox(translate("console", "Do not show this again for this card until cards are reloaded"));
        quiet->setObjectName(u"quiet"_s);
        box.column->addWidget(quiet);
        connect(notice_, &QDialog::finished, this, [this, card, quiet] {
            if (quiet->isChecked()) quietCards_.insert(card);
        });
    }
    box.column->addWidget(box.buttons);
    notice_->show();
    Q_EMIT opened(notice_);
}

void Boxes::countSilenced(const QString& card) {
    ++silenced_[CardEngine::scriptName(card)];
    int all = 0;
    for (const auto& [name, count] : silenced_) all += count;
    const QString whose =
        silenced_.size() == 1 ? silenced_.begin()->first : translate("console", "%1 cards").arg(silenced_.size());
    Q_EMIT silenced(all == 1 ? translate("console", "1 message of %1 not shown").arg(whose)
                             : translate("console", "%1 messages of %2 not shown").arg(QString::number(all), whose));
}

void Boxes::forgetQuietCards() {
    quietCards_.clear();
    silenced_.clear();
    Q_EMIT silenced({});
}

void Boxes::message(const Asker& asker, const QString& title, const QString& text, Severity severity) {
    if (!asker.isAttended()) {
        showNotice(asker.card, title, text, severity);
        return;
    }
    QDialog dialog(over(asker));
    Box box(dialog, title, text, QDialogButtonBox::Ok);
    addSeverity(box, severity);
    addButtons(box, asker, program_.clearing);
    run({Question::Kind::Message, asker, title, text}, dialog);
}

bool Boxes::yesNo(const Asker& asker, const QString& title, const QString& text) {
    const Question question{Question::Kind::YesNo, asker, title, text};
    const int clearings = program_.clearing.count();
    bool yes = false;
    if (const auto given = program_.questions.answeredBeforehand(question)) {
        yes = *given == Question::kYes;
    } else {
        QDialog dialog(over(asker));
        Box box(dialog, title, text, QDialogButtonBox::Yes | QDialogButtonBox::No);
        addButtons(box, asker, program_.clearing);
        yes = run(question, dialog);
    }
    if (program_.clearing.count() == clearings)
        program_.questions.tellAnswer(question, yes ? Question::kYes : Question::kNo);
    return yes;
}

std::optional<QString> Boxes::input(const Asker& asker, const QString& title, const QString& prompt,
                                    const QString& proposed) {
    AnswerBox dialog(over(asker), asker, program_.closing);
    Box box(dialog, title, prompt, QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    auto* field = new QLineEdit(proposed);
    field->setObjectName(u"answer"_s);
    field->setAccessibleName(title);
    box.column->addWidget(field);
    addButtons(box, asker, program_.clearing);
    field->selectAll();
    field->setFocus();
    return run({Question::Kind::Text, asker, title, prompt}, dialog) ? std::optional(field->text()) : std::nullopt;
}

}  // namespace zelvor
