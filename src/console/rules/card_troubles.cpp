#include "console_rules/card_troubles.h"

#include "engine/on_air.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

bool isOperators(const Asker& asker) {
    return asker.isAttended() && !asker.functionCard;
}

}  // namespace

CardTroubles::CardTroubles(CardEngine& engine)
    : state_(engine.state()), line_(engine.form().at(controls.lblONAIRTROUBLE)) {}

void CardTroubles::add(const Asker& asker, const QString& words) {
    if (asker.card.isEmpty()) return;
    state_.console.troubles[CardEngine::scriptName(asker.card)] = words;
    const bool taken = isOperators(shown_) && !shown_.card.isEmpty();
    if (isOperators(asker) || !taken) {
        shown_ = asker;
        line_.setText(captionOf(state_, asker.card) + u": "_s + words);
        line_.setRole(Control::Role::Bad);
    }
    Q_EMIT changed();
}

void CardTroubles::wentWell(const Asker& asker) {
    if (asker.card.isEmpty()) return;
    // A run of which one line was refused and the next one taken has not gone well.
    const bool later = asker.run > shown_.run;
    if (isOperators(asker)) {
        if (!later) return;
        clear();
        Q_EMIT cardWentWell();
        return;
    }
    if (shown_.card == asker.card && !later) return;
    if (state_.console.troubles.erase(CardEngine::scriptName(asker.card)) == 0) return;
    if (shown_.card == asker.card) showNone();
    Q_EMIT changed();
    if (state_.console.troubles.empty()) Q_EMIT cleared();
}

void CardTroubles::clear() {
    if (state_.console.troubles.empty()) return;
    state_.console.troubles.clear();
    showNone();
    Q_EMIT changed();
    Q_EMIT cleared();
}

void CardTroubles::showNone() {
    shown_ = {};
    line_.setText({});
}

}  // namespace zelvor
