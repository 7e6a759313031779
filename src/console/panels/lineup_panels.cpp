#include "console/panels/lineup_panels.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

// A row of number boxes for home above one for away: `name` + "H" and `name` + "A".
QGridLayout* lineUps(const Mirrors& mirrors, const QString& name, int players) {
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(4);
    grid->setVerticalSpacing(6);
    for (int player = 0; player < players; ++player) {
        grid->addWidget(PanelFrame::word(QString::number(player + 1)), 0, player + 1, Qt::AlignHCenter);
        grid->setColumnStretch(player + 1, 1);
    }
    int row = 1;
    for (const QString& side : {u"H"_s, u"A"_s}) {
        grid->addWidget(PanelFrame::word(side == u"H" ? u"Home"_s : u"Away"_s), row, 0);
        for (int player = 0; player < players; ++player) {
            QLineEdit* number = mirrors.textBox(name + side, player);
            number->setAlignment(Qt::AlignCenter);
            number->setMinimumWidth(30);
            grid->addWidget(number, row, player + 1);
        }
        ++row;
    }
    return grid;
}

}  // namespace

StartFivePanel::StartFivePanel(const Mirrors& mirrors) : PanelFrame(mirrors, u"Frame2"_s) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(12, 12, 12, 12);
    column->addLayout(lineUps(mirrors, u"txtS5"_s, 5));
    column->addStretch(1);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(mirrors.button(u"cmdAUTO5ADA"_s));
    buttons->addWidget(mirrors.button(u"cmdINVOKE"_s));
    buttons->addWidget(mirrors.button(u"cmdAUTOCARD"_s));
    buttons->addStretch(1);
    column->addLayout(buttons);
}

StartElevenPanel::StartElevenPanel(const Mirrors& mirrors) : PanelFrame(mirrors, u"Frame6"_s) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(12, 12, 12, 12);
    column->addLayout(lineUps(mirrors, u"txtS11"_s, 11));
    column->addStretch(1);
}

}  // namespace zelvor
