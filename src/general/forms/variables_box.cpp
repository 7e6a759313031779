#include "general_forms/variables_box.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

#include "base/translate.h"
#include "base/window_frame.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

constexpr QSize kBoxSize{640, 520};
const QString kLineEnd = u"\r\n"_s;

}  // namespace

VariablesBox::VariablesBox() : search_(new QLineEdit), view_(new QPlainTextEdit) {
    setObjectName(u"frmVARS"_s);
    setWindowTitle(u"Display Vars"_s);
    setAttribute(Qt::WA_QuitOnClose, false);
    resize(kBoxSize.boundedTo(screen()->availableSize() - kWindowFrame));
    search_->setObjectName(u"txtSEARCH"_s);
    search_->setPlaceholderText(translate("general", "Search"));
    search_->setToolTip(translate("general", "Shows the lines that hold this text"));
    search_->setAccessibleName(search_->placeholderText());
    search_->setClearButtonEnabled(true);
    search_->findChild<QAction*>()->setText(translate("general", "Show all"));
    view_->setObjectName(u"txtVARS"_s);
    view_->setAccessibleName(windowTitle());
    view_->setReadOnly(true);
    view_->setLineWrapMode(QPlainTextEdit::NoWrap);
    auto* copy = new QPushButton(translate("general", "&Copy"));
    copy->setObjectName(u"cmdCOPY"_s);
    copy->setToolTip(translate("general", "Copies the lines shown"));
    auto* leave = new QPushButton(translate("general", "C&lose"));
    leave->setObjectName(u"cmdCLOSE"_s);

    auto* column = new QVBoxLayout(this);
    column->addWidget(search_);
    column->addWidget(view_, 1);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(copy);
    buttons->addWidget(leave);
    column->addLayout(buttons);
    connect(search_, &QLineEdit::textChanged, this, &VariablesBox::showLines);
    connect(copy, &QPushButton::clicked, this, [this] { QGuiApplication::clipboard()->setText(view_->toPlainText()); });
    connect(leave, &QPushButton::clicked, this, &QWidget::close);
}

void VariablesBox::setText(const QString& text) {
    QGuiApplication::clipboard()->setText(text);
    lines_ = text.split(kLineEnd, Qt::SkipEmptyParts);
    search_->clear();
    showLines();
    search_->setFocus();
}

void VariablesBox::search(const QString& words) {
    search_->setText(words);
}

void VariablesBox::showLines() {
    QStringList shown = lines_.mid(0, 1);
    for (const QString& line : lines_.mid(1)) {
        if (line.contains(search_->text(), Qt::CaseInsensitive)) shown += line;
    }
    view_->setPlainText(shown.join(u'\n'));
}

void VariablesBox::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) {
        close();
        return;
    }
    QWidget::keyPressEvent(event);
}

}  // namespace zelvor
