#include "console/panels/players_panel.h"

#include <QGridLayout>

#include "base/translate.h"

using namespace Qt::StringLiterals;

namespace zelvor {

using theme::Role;

namespace {
constexpr int kPlayerRows = 12;
constexpr int kPlayers = 24;
constexpr int kProposals = 8;
constexpr int kProposalColumns = 4;
}  // namespace

PlayersPanel::PlayersPanel(const Mirrors& mirrors) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(3);
    auto* heads = new QHBoxLayout;
    heads->setSpacing(6);
    heads->addWidget(teamName(mirrors, controls.lblHTEAM, translate("console", "Home")), 1);
    ConsoleButton* clear = mirrors.button(controls.cmdCLEARTAG, -1, {12, false});
    clear->setFixedHeight(24);
    heads->addWidget(clear);
    heads->addWidget(teamName(mirrors, controls.lblATEAM, translate("console", "Away")), 1);
    column->addLayout(heads);
    auto* teams = new QHBoxLayout;
    teams->setSpacing(8);
    teams->addLayout(players(mirrors, controls.lblHPLAYERS), 1);
    teams->addLayout(players(mirrors, controls.lblAPLAYERS), 1);
    column->addLayout(teams, 1);
}

TextLabel* PlayersPanel::teamName(const Mirrors& mirrors, const ControlRow& team, const QString& nobody) {
    TextLabel* label = mirrors.label(team, -1, {14, true, Qt::AlignCenter, Role::Text, Role::Cell});
    label->setPlaceholder(nobody);
    label->setFixedHeight(24);
    return label;
}

QLayout* PlayersPanel::players(const Mirrors& mirrors, const ControlRow& row) {
    auto* grid = new QGridLayout;
    grid->setSpacing(3);
    for (int player = 0; player < kPlayers; ++player) {
        TextLabel* label = mirrors.label(
            row, player, {12, false, Qt::AlignLeft | Qt::AlignVCenter, Role::Text, Role::Cell, false, true});
        label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
        grid->addWidget(label, player % kPlayerRows, player / kPlayerRows);
        grid->setRowStretch(player % kPlayerRows, 1);
        grid->setColumnStretch(player / kPlayerRows, 1);
    }
    return grid;
}

ProposalsPanel::ProposalsPanel(const Mirrors& mirrors) {
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(6);
    for (int i = 0; i < kProposals; ++i) {
        TextLabel* label = mirrors.label(controls.lblPROPOSED, i + 1,
                                         {12, false, Qt::AlignLeft | Qt::AlignVCenter, Role::Text, Role::Cell, true});
        label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
        label->setFixedHeight(42);
        grid->addWidget(label, i / kProposalColumns, i % kProposalColumns);
        grid->setColumnStretch(i % kProposalColumns, 1);
    }
}

}  // namespace zelvor
