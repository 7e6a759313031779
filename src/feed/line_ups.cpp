#include "feed/line_ups.h"

#include "base/number.h"

using namespace Qt::StringLiterals;

namespace zelvor {

LineUps::LineUps(const FormModel& form, VariableStore& variables, ErrorTrap& trap) : QuietRules(trap) {
    const auto follow = [&](const ControlRow& boxes, const QString& name) {
        for (Control* box : form.named(boxes)) {
            const QString variable = name + QString::number(box->index() + 1);
            onChange(*box, Control::Property::Text, [&variables, variable](const Control& changed) {
                variables.SetVar(variable, Val(changed.text()));
            });
        }
    };
    for (const TeamControls& team : {kHomeControls, kAwayControls}) {
        follow(team.startFive, u"@S5"_s + team.letter);
        follow(team.startEleven, u"@S11"_s + team.letter);
    }
}

}  // namespace zelvor
