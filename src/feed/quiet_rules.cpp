#include "feed/quiet_rules.h"

#include <QScopedValueRollback>

using namespace Qt::StringLiterals;

namespace zelvor {

void QuietRules::onChange(Control& control, Control::Property property, const Handler& handler) {
    connect(&control, &Control::changed, this, [this, property, handler](Control* changed, Control::Property which) {
        if (which == property) quietly(changed->name() + u"_Change"_s, [&] { handler(*changed); });
    });
}

void QuietRules::runUnattended(CardEngine& engine, const QString& card) {
    ShowState& state = engine.state();
    const QScopedValueRollback depth(state.unattendedRuns, state.unattendedRuns + 1);
    const QScopedValueRollback innermost(state.unattendedCard, card);
    engine.SHOW_TVCARD(card, false, false);
}

}  // namespace zelvor
