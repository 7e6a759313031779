#include "feed/proposals.h"

#include "engine/proposal.h"

using namespace Qt::StringLiterals;

namespace zelvor {

Proposals::Proposals(CardEngine& engine) : QuietRules(engine.program().trap), engine_(engine) {}

void Proposals::lblPROPOSED(int index, const Presser& presser) {
    quietly(u"lblPROPOSED_Click"_s, [&] { take(index, presser); });
}

void Proposals::take(int index, const Presser& presser) {
    clearPlayers();
    Control& label = engine_.form().at(controls.lblPROPOSED, index);
    if (label.tag().isEmpty()) return;
    const Proposal proposal(label);
    Asker asker{Asker::Kind::Operator, proposal.card()};
    asker.presser = presser;
    proposal.fire(engine_, proposal.card(), label, asker);
}

void Proposals::clearPlayers() {
    constexpr int kCleared = 18;  // of the 24 labels: meant
    const FormModel& form = engine_.form();
    for (const TeamControls& team : {kHomeControls, kAwayControls}) {
        for (int player = 0; player < kCleared; ++player) form.at(team.players, player).setForeColour(colours::kWhite);
        form.at(team.team).setForeColour(colours::kWhite);
    }
    engine_.state().console.playerSelected = false;
}

}  // namespace zelvor
