#include "feed/quiet_rules.h"

using namespace Qt::StringLiterals;

namespace zelvor {

void QuietRules::onChange(Control& control, Control::Property property, const Handler& handler) {
    connect(&control, &Control::changed, this, [this, property, handler](Control* changed, Control::Property which) {
        if (which == property) quietly(changed->name() + u"_Change"_s, [&] { handler(*changed); });
    });
}

}  // namespace zelvor
