#include "console/panels/link_panels.h"

#include <QKeyEvent>

#include "console/line_view.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

// Address, port, connect button and "Reconnect" box of a link, a row each for boxes and their names.
void addAddress(const Mirrors& mirrors, QGridLayout* grid, int row, const QString& remote) {
    grid->addWidget(PanelFrame::word(u"Address"_s), row, 0);
    grid->addWidget(PanelFrame::word(u"Port"_s), row, 1);
    grid->addWidget(mirrors.textBox(u"txtGASPARIP"_s + remote), row + 1, 0);
    QLineEdit* port = mirrors.textBox(u"txtGASPARPORT"_s + remote);
    port->setFixedWidth(64);
    grid->addWidget(port, row + 1, 1);
    ConsoleButton* connectButton = mirrors.button(u"cmdGASPARCONNECT"_s + remote, -1, {14, true});
    connectButton->setFixedWidth(110);
    grid->addWidget(connectButton, row + 1, 2);
    grid->addWidget(mirrors.checkBox(u"chkRECONNECT"_s + remote), row + 1, 3);
    grid->setColumnStretch(0, 1);
}

}  // namespace

NetworkPanel::NetworkPanel(const Mirrors& mirrors) : PanelFrame(mirrors, u"Frame4"_s) {
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(12, 10, 12, 12);
    grid->addWidget(word(u"Remote server"_s), 0, 0);
    grid->addWidget(mirrors.list(u"cmbCASPARREMOTELIST"_s), 1, 0, 1, 4);
    addAddress(mirrors, grid, 2, u"REMOTE"_s);
    grid->setRowStretch(4, 1);
}

CasparPanel::CasparPanel(const Mirrors& mirrors, QAbstractItemModel& responses) : PanelFrame(mirrors, u"Frame5"_s) {
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(12, 8, 12, 10);
    grid->setVerticalSpacing(5);
    addAddress(mirrors, grid, 0, {});
    auto* responseView = new LineView(responses, LineView::Newest::OnTop);
    mirrors.panel(responseView, u"lstGASPARRESPONSE"_s);
    grid->addWidget(responseView, 2, 0, 1, 4);
    grid->setRowStretch(2, 1);

    auto* manual = new QHBoxLayout;
    manual->setSpacing(6);
    QLineEdit* line = mirrors.textBox(u"txtMANUALCASPAR"_s);
    line->setPlaceholderText(u"Command line"_s);
    line->installEventFilter(this);
    manual->addWidget(line, 1);
    manual->addWidget(mirrors.button(u"cmdMANUALSEND"_s));
    grid->addLayout(manual, 3, 0, 1, 4);

    auto* log = new QHBoxLayout;
    log->addWidget(mirrors.checkBox(u"chkLOGFILE"_s));
    log->addWidget(mirrors.label(u"lblLOG"_s, -1, {12, false, Qt::AlignLeft | Qt::AlignVCenter, theme::Role::Muted}));
    log->addStretch(1);
    log->addWidget(mirrors.button(u"cmdVIEWGASPHISTORY"_s));
    grid->addLayout(log, 4, 0, 1, 4);
}

bool CasparPanel::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Up) Q_EMIT olderWanted();
        if (key == Qt::Key_Down) Q_EMIT newerWanted();
        if (key == Qt::Key_Up || key == Qt::Key_Down) return true;
    }
    return PanelFrame::eventFilter(watched, event);
}

}  // namespace zelvor
