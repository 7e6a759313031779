#include "feed/proposals.h"

#include "engine/arguments.h"
#include "engine/auto_tags.h"
#include "engine/used_proposal.h"

using namespace Qt::StringLiterals;

namespace zelvor {

Proposals::Proposals(CardEngine& engine) : QuietRules(engine.program().trap), engine_(engine) {}

void Proposals::lblPROPOSED(int index) {
    quietly(u"lblPROPOSED_Click"_s, [&] { take(index); });
}

void Proposals::take(int index) {
    clearPlayers();
    Control& label = engine_.form().at(controls.lblPROPOSED, index);
    // A copy: the card may propose anew.
    const QString record = label.tag();
    if (record.isEmpty()) return;
    const Pieces fields(record, u'|');
    const QString id = fields[0].toString();
    const QString card = fields[2].toString();
    setAutoTags(engine_.state().variables, fields[3]);
    if (engine_.SHOW_TVCARD(card, true, true, {Asker::Kind::Operator, card}) == CardEngine::Outcome::Closed) return;
    markProposalUsed(engine_.ports().database, id, label);
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
