#include "console/panels/lineup_panels.h"

#include "base/translate.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

// A row of number boxes for home above one for away, each below its side's name.
QGridLayout* lineUps(const Mirrors& mirrors, const ControlRow& home, const ControlRow& away) {
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(3);
    grid->setVerticalSpacing(6);
    const int players = home.elements.last + 1;
    for (int player = 0; player < players; ++player) {
        grid->addWidget(PanelFrame::word(QString::number(player + 1)), 0, player, Qt::AlignHCenter);
        grid->setColumnStretch(player, 1);
    }
    const auto addSide = [&](int row, const QString& side, const ControlRow& boxes) {
        grid->addWidget(PanelFrame::word(side), row, 0, 1, players);
        for (int player = 0; player < players; ++player) {
            QLineEdit* number = mirrors.textBox(boxes, player);
            number->setAlignment(Qt::AlignCenter);
            number->setMinimumWidth(24);
            number->setProperty("narrow", true);
            grid->addWidget(number, row + 1, player);
        }
    };
    addSide(1, translate("console", "Home"), home);
    addSide(3, translate("console", "Away"), away);
    return grid;
}

}  // namespace

StartFivePanel::StartFivePanel(const Mirrors& mirrors) : PanelFrame(mirrors, controls.Frame2) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(12, 12, 12, 12);
    column->addLayout(lineUps(mirrors, kHomeControls.startFive, kAwayControls.startFive));
    column->addStretch(1);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(mirrors.button(controls.cmdAUTO5ADA));
    buttons->addWidget(mirrors.button(controls.cmdINVOKE));
    buttons->addWidget(mirrors.button(controls.cmdAUTOCARD));
    buttons->addStretch(1);
    column->addLayout(buttons);
}

StartElevenPanel::StartElevenPanel(const Mirrors& mirrors) : PanelFrame(mirrors, controls.Frame6) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(12, 12, 12, 12);
    column->addLayout(lineUps(mirrors, kHomeControls.startEleven, kAwayControls.startEleven));
    column->addStretch(1);
}

}  // namespace zelvor
