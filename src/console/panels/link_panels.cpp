#include "console/panels/link_panels.h"

#include <QApplication>
#include <QKeyEvent>

#include "base/translate.h"
#include "console/line_view.h"
#include "form/follow.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

// Address, port and connect button of a link, a row each for boxes and what stands above them.
void addAddress(const Mirrors& mirrors, QGridLayout* grid, int row, const LinkControls& link) {
    grid->addWidget(PanelFrame::word(translate("console", "Address")), row, 0);
    grid->addWidget(PanelFrame::word(translate("console", "Port")), row, 1);
    QLineEdit* address = mirrors.textBox(link.address);
    constexpr int kLeastAddress = 90;  // pixels
    address->setMinimumWidth(kLeastAddress);
    grid->addWidget(address, row + 1, 0);
    QLineEdit* port = mirrors.textBox(link.port);
    port->setFixedWidth(78);
    grid->addWidget(port, row + 1, 1);
    ConsoleButton* connectButton = mirrors.button(link.connect, -1, {14, true});
    connectButton->setMinimumWidth(110);
    grid->addWidget(connectButton, row + 1, 2);
    // Made last: the keyboard comes to it last.
    grid->addWidget(mirrors.checkBox(link.reconnect), row, 2);
    grid->setColumnStretch(0, 1);
}

}  // namespace

NetworkPanel::NetworkPanel(const Mirrors& mirrors) : PanelFrame(mirrors, controls.Frame4) {
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(12, 10, 12, 12);
    grid->addWidget(word(translate("console", "Remote server")), 0, 0, 1, 3);
    QComboBox* servers = mirrors.list(controls.cmbCASPARREMOTELIST);
    servers->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    grid->addWidget(servers, 1, 0, 1, 3);
    addAddress(mirrors, grid, 2, kRemoteLinkControls);
    grid->setRowStretch(4, 1);
}

CasparPanel::CasparPanel(const Mirrors& mirrors, QAbstractItemModel& responses) : PanelFrame(mirrors, controls.Frame5) {
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(12, 8, 12, 10);
    grid->setVerticalSpacing(5);
    addAddress(mirrors, grid, 0, kMainLinkControls);
    auto* responseView = new LineView(responses, LineView::Newest::OnTop);
    mirrors.panel(responseView, controls.lstGASPARRESPONSE);
    grid->addWidget(responseView, 2, 0, 1, 3);
    grid->setRowStretch(2, 1);

    auto* manual = new QHBoxLayout;
    manual->setSpacing(6);
    QLineEdit* line = mirrors.textBox(controls.txtMANUALCASPAR);
    line->setPlaceholderText(translate("console", "Command line"));
    line->installEventFilter(this);
    manual->addWidget(line, 1);
    manual->addWidget(mirrors.button(controls.cmdMANUALSEND));
    grid->addLayout(manual, 3, 0, 1, 3);

    auto* log = new QHBoxLayout;
    log->addWidget(mirrors.checkBox(controls.chkLOGFILE));
    log->addWidget(
        mirrors.label(controls.lblLOG, -1, {12, false, Qt::AlignLeft | Qt::AlignVCenter, theme::Role::Muted}));
    log->addStretch(1);
    log->addWidget(mirrors.button(controls.cmdVIEWGASPHISTORY));
    grid->addLayout(log, 4, 0, 1, 3);
}

ControlsCover::ControlsCover(const Mirrors& mirrors, QWidget& covered) {
    setAutoFillBackground(true);
    mirrors.panel(this, controls.picHideControls);
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(12, 10, 12, 12);
    QLabel* why = PanelFrame::word(translate("console", "This pack hides the controls. Links can be connected here."));
    why->setWordWrap(true);
    grid->addWidget(why, 0, 0, 1, 3);
    grid->setRowMinimumHeight(1, 12);
    grid->addWidget(PanelFrame::word(translate("console", "Main server")), 2, 0, 1, 3);
    addAddress(mirrors, grid, 3, kMainLinkControls);
    grid->setRowMinimumHeight(5, 12);
    grid->addWidget(PanelFrame::word(translate("console", "Remote server")), 6, 0, 1, 3);
    addAddress(mirrors, grid, 7, kRemoteLinkControls);
    grid->setRowStretch(9, 1);

    const Control& cover = mirrors.form().at(controls.picHideControls);
    follow(cover, {Control::Property::Visible}, this, [this, &cover, &covered] {
        // The next box in the row must not get what was being typed.
        if (cover.visible() && covered.isAncestorOf(QApplication::focusWidget())) window()->setFocus();
        covered.setEnabled(!cover.visible());
    });
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
