#pragma once

#include <QObject>

#include "base/asker.h"

namespace zelvor {

// How a run of a card ended. A cancelled ask counts as Ran, a failed query as NoData.
enum class RunOutcome { Ran, NoData, NoScript, Failed, Cleared, Closed };

// "ran", "no data", "no script", "failed", "cleared", "closed".
QString outcomeText(RunOutcome outcome);

// Tells of each run that somebody asked for; a card that such a run fires in its turn belongs to it. Runs may lie
// inside one another: asker.run tells them apart.
class CardRuns : public QObject {
    Q_OBJECT

 Q_SIGNALS:
    void begun(const zelvor::Asker& asker);
    void ended(const zelvor::Asker& asker, zelvor::RunOutcome outcome);
};

}  // namespace zelvor
