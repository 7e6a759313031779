#include "feed/quiet_rules.h"

#include "form/follow.h"

using namespace Qt::StringLiterals;

namespace zelvor {

void QuietRules::onChange(Control& control, Control::Property property, const Handler& handler) {
    zelvor::onChange(control, {property}, this,
                     [this, &control, handler] { quietly(control.name() + u"_Change"_s, [&] { handler(control); }); });
}

}  // namespace zelvor
