#include "console/panels/history_panel.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QPlainTextEdit>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include "base/translate.h"
#include "console/line_view.h"
#include "form/follow.h"

using namespace Qt::StringLiterals;

namespace zelvor {

HistoryPanel::HistoryPanel(const Mirrors& mirrors, QAbstractItemModel& history)
    : PanelFrame(mirrors, controls.fraGASPHISTORY),
      template_(mirrors.form().at(controls.lblLASTXML)),
      view_(new QPlainTextEdit),
      asSent_(mirrors.form().at(controls.chkLASTXMLRAW)) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(10, 6, 10, 8);
    column->setSpacing(4);
    auto* head = new QHBoxLayout;
    head->addWidget(word(translate("console", "Socket history")));
    head->addStretch(1);
    head->addWidget(mirrors.checkBox(controls.chkLASTXMLRAW));
    head->addWidget(mirrors.button(controls.cmdLASTXML));
    head->addWidget(mirrors.button(controls.cmdGASPHISTCLOSE));
    column->addLayout(head);

    auto* lines = new LineView(history, LineView::Newest::AtBottom);
    mirrors.panel(lines, controls.lstGASPARHISTORY);
    column->addWidget(lines, 1);
    view_->setObjectName(template_.name());
    view_->setProperty("index", -1);
    view_->setReadOnly(true);
    view_->setFont(theme::font(12));
    view_->setToolTip(template_.hint());
    view_->setAccessibleName(template_.hint());
    column->addWidget(view_, 1);

    connect(lines, &LineView::lineClicked, this,
            [](const QString& line) { QGuiApplication::clipboard()->setText(line); });
    follow(asSent_, {Control::Property::Checked}, this, [this] { showTemplate(); });
    follow(template_, {Control::Property::Text}, this, [this] { showTemplate(); });
    // The view lies beneath the list: it shows where the list is hidden.
    const Control& list = mirrors.form().at(controls.lstGASPARHISTORY);
    Control& asSent = mirrors.form().at(controls.chkLASTXMLRAW);
    follow(list, {Control::Property::Visible}, this, [this, &list, &asSent] {
        view_->setVisible(!list.visible());
        asSent.setVisible(!list.visible());
    });
}

void HistoryPanel::showTemplate() {
    view_->setPlainText(asSent_.checked() ? template_.text() : readableXml(template_.text()));
}

QString readableXml(const QString& xml) {
    QXmlStreamReader reader(xml);
    QString readable;
    QXmlStreamWriter writer(&readable);
    writer.setAutoFormatting(true);
    writer.setAutoFormattingIndent(2);
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.hasError()) return xml;
        if (!reader.isStartDocument() && !reader.isEndDocument()) writer.writeCurrentToken(reader);
    }
    return readable.trimmed();
}

}  // namespace zelvor
