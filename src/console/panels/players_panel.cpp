#include "console/panels/players_panel.h"

#include <QGridLayout>
#include <algorithm>
#include <array>

#include "form/follow.h"

#include "base/translate.h"

using namespace Qt::StringLiterals;

namespace zelvor {

using theme::Role;

namespace {
constexpr int kPlayerRows = 12;
constexpr int kPlayers = 24;
constexpr int kProposals = 8;
constexpr int kProposalColumns = 4;
// What a proposal's colour says, in a word and by a mark.
struct Standing {
    Colour colour;
    const char* word;
    TextLabel::Mark mark;
};
constexpr std::array kStandings{
    Standing{colours::kOpenProposal, QT_TRANSLATE_NOOP("console", "open"), TextLabel::Mark::Ring},
    Standing{colours::kUsedProposal, QT_TRANSLATE_NOOP("console", "used"), TextLabel::Mark::Tick},
    Standing{colours::kAcceptedProposal, QT_TRANSLATE_NOOP("console", "used earlier"), TextLabel::Mark::TickInRing},
};

void showStanding(TextLabel& label, const Control& proposal) {
    const auto* found = std::ranges::find(kStandings, proposal.backColour(),
                                          [](const Standing& each) { return std::optional(each.colour); });
    const bool known = found != kStandings.end() && !proposal.text().isEmpty();
    label.setMark(known ? found->mark : TextLabel::Mark::None);
    label.setAccessibleDescription(known ? translate("console", found->word) : QString());
}

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
        const Control& control = mirrors.form().at(row, player);
        follow(control, {Control::Property::ForeColour}, label, [label, &control] {
            const bool tagged = control.foreColour() == colours::kGreen;
            const bool isOther = control.foreColour() == colours::kRed;
            label->setAccessibleDescription(tagged    ? translate("console", "tagged")
                                            : isOther ? translate("console", "tagged as the other")
                                                      : QString());
        });
        grid->addWidget(label, player % kPlayerRows, player / kPlayerRows);
        grid->setRowStretch(player % kPlayerRows, 1);
    }
    // A second column without players leaves the room to the names in the first.
    const auto share = [grid, &form = mirrors.form(), &row] {
        bool isShort = true;
        for (int player = kPlayerRows; player < kPlayers; ++player)
            isShort = isShort && form.at(row, player).text().isEmpty();
        grid->setColumnStretch(0, isShort ? 3 : 1);
        grid->setColumnStretch(1, 1);
    };
    for (int player = kPlayerRows; player < kPlayers; ++player)
        follow(mirrors.form().at(row, player), {Control::Property::Text}, grid, share);
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
        const Control& proposal = mirrors.form().at(controls.lblPROPOSED, i + 1);
        follow(proposal, {Control::Property::BackColour, Control::Property::Text}, label,
               [label, &proposal] { showStanding(*label, proposal); });
        grid->addWidget(label, i / kProposalColumns, i % kProposalColumns);
        grid->setColumnStretch(i % kProposalColumns, 1);
    }
}

}  // namespace zelvor
