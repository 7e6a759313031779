#pragma once

#include <QStringList>

#include "ask/pick_list.h"

namespace zelvor {

// Answers pick lists from a list of prepared answers, without a display.
class ScriptedAsk : public AskDialog {
 public:
    // answers: taken in order; each a key that its list holds, or "cancel".
    ScriptedAsk(ShowState& state, Database& database, ErrorTrap& trap, QStringList answers)
        : state_(state), database_(database), trap_(trap), answers_(std::move(answers)) {}

    // From now on these are the answers.
    void answerWith(QStringList answers) { answers_ = std::move(answers); }

    // Throws 5, naming the field and the keys offered, when no answer is left or the list does not hold it.
    void show(const Asker& asker) override;

 private:
    ShowState& state_;
    Database& database_;
    ErrorTrap& trap_;
    QStringList answers_;
};

}  // namespace zelvor
