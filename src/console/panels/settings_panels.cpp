#include "console/panels/settings_panels.h"

using namespace Qt::StringLiterals;

namespace zelvor {

EffectPanel::EffectPanel(const Mirrors& mirrors) : PanelFrame(mirrors, u"Frame3"_s) {
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(12, 12, 12, 12);
    grid->setHorizontalSpacing(16);
    const QStringList names{u"Fade in"_s, u"Fade out"_s, u"Roll speed"_s, u"Wipe"_s};
    for (int i = 0; i < names.size(); ++i) {
        const int row = i / 2 * 2;
        grid->addWidget(word(names[i]), row, i % 2);
        grid->addWidget(mirrors.list(u"cmbFADE"_s, i, true), row + 1, i % 2);
    }
    grid->setRowStretch(4, 1);
}

ClocksPanel::ClocksPanel(const Mirrors& mirrors) : PanelFrame(mirrors, u"Frame7"_s) {
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(12, 8, 12, 12);
    grid->setHorizontalSpacing(12);
    grid->setColumnStretch(1, 1);
    grid->addWidget(mirrors.label(u"lblCLOCK"_s, -1, {44, true}), 0, 0, 1, 3);
    grid->addWidget(mirrors.optionButton(u"optTIMERS"_s, 0), 1, 0);
    grid->addWidget(mirrors.optionButton(u"optTIMERS"_s, 1), 2, 0);
    grid->addWidget(mirrors.textBox(u"txtCOUNTDOWNTIME"_s), 2, 1);
    grid->addWidget(mirrors.button(u"cmdCLOCKS"_s, -1, {14, true}), 1, 2, 2, 1);
    grid->addWidget(mirrors.label(u"lblFEEDDETAIL"_s, -1, {12, false, Qt::AlignLeft | Qt::AlignVCenter}), 3, 0, 1, 3);
    grid->addWidget(word(u"Extra time for cards"_s), 4, 0);
    grid->addWidget(mirrors.textBox(u"txtEXTRATIME"_s), 4, 1);
    grid->addWidget(word(u"Test sender"_s), 5, 0);
    grid->addWidget(mirrors.button(u"Command1"_s), 5, 2);
    grid->setRowStretch(0, 1);
}

}  // namespace zelvor
