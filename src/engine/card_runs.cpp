#include "engine/card_runs.h"

using namespace Qt::StringLiterals;

namespace zelvor {

QString outcomeText(RunOutcome outcome) {
    switch (outcome) {
        case RunOutcome::Ran:
            return u"ran"_s;
        case RunOutcome::NoData:
            return u"no data"_s;
        case RunOutcome::NoScript:
            return u"no script"_s;
        case RunOutcome::Failed:
            return u"failed"_s;
        case RunOutcome::Cleared:
            return u"cleared"_s;
        case RunOutcome::Closed:
            return u"closed"_s;
    }
    return {};
}

}  // namespace zelvor
