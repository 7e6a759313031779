#include "feed/line_ups.h"

#include "base/number.h"

using namespace Qt::StringLiterals;

namespace zelvor {

LineUps::LineUps(const FormModel& form, VariableStore& variables, ErrorTrap& trap) : QuietRules(trap) {
    for (const QString& boxes : {u"S5A"_s, u"S5H"_s, u"S11A"_s, u"S11H"_s}) {
        for (Control* box : form.named(u"txt"_s + boxes)) {
            const QString variable = u'@' + boxes + QString::number(box->index() + 1);
            onChange(*box, Control::Property::Text, [&variables, variable](const Control& changed) {
                variables.SetVar(variable, Val(changed.text()));
            });
        }
    }
}

}  // namespace zelvor
