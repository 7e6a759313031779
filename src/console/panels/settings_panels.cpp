#include "console/panels/settings_panels.h"

#include "base/translate.h"

using namespace Qt::StringLiterals;

namespace zelvor {

EffectPanel::EffectPanel(const Mirrors& mirrors) : PanelFrame(mirrors, controls.Frame3) {
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(12, 12, 12, 12);
    grid->setHorizontalSpacing(16);
    const QStringList names{translate("console", "Fade in"), translate("console", "Fade out"),
                            translate("console", "Roll speed"), translate("console", "Wipe")};
    for (int i = 0; i < names.size(); ++i) {
        const int row = i / 2 * 2;
        grid->addWidget(word(names[i]), row, i % 2);
        grid->addWidget(mirrors.list(controls.cmbFADE, i, true), row + 1, i % 2);
    }
    grid->setRowStretch(4, 1);
}

ClocksPanel::ClocksPanel(const Mirrors& mirrors) : PanelFrame(mirrors, controls.Frame7) {
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(12, 8, 12, 12);
    grid->setHorizontalSpacing(12);
    grid->setColumnStretch(1, 1);
    grid->addWidget(mirrors.label(controls.lblCLOCK, -1, {44, true}), 0, 0, 1, 3);
    grid->addWidget(mirrors.optionButton(controls.optTIMERS, 0), 1, 0);
    grid->addWidget(mirrors.optionButton(controls.optTIMERS, 1), 2, 0);
    grid->addWidget(mirrors.textBox(controls.txtCOUNTDOWNTIME), 2, 1);
    grid->addWidget(mirrors.button(controls.cmdCLOCKS, -1, {14, true}), 1, 2, 2, 1);
    grid->addWidget(mirrors.label(controls.lblFEEDDETAIL, -1, {12, false, Qt::AlignLeft | Qt::AlignVCenter}), 3, 0, 1,
                    3);
    grid->addWidget(word(translate("console", "Extra time for cards")), 4, 0);
    grid->addWidget(mirrors.textBox(controls.txtEXTRATIME), 4, 1);
    grid->addWidget(word(translate("console", "Test sender")), 5, 0);
    grid->addWidget(mirrors.button(controls.Command1), 5, 2);
    grid->setRowStretch(0, 1);
}

}  // namespace zelvor
