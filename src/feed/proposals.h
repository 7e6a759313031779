#pragma once

#include "feed/quiet_rules.h"

namespace zelvor {

// The row of proposed cards: a click takes the proposal.
class Proposals : public QuietRules {
    Q_OBJECT

 public:
    explicit Proposals(CardEngine& engine);

    // index: 1 to 8. Unselects players, runs the label's card with the automatic answers of its tag
    // (id|used|card|key:answer##...), marks it used in the database and colours it. A tag with fewer fields, or an
    // answer missing, runs nothing; a failing database leaves the colour. A card that did not run leaves it, too,
    // and the label says why.
    void lblPROPOSED(int index, const Presser& presser = {QStringLiteral("proposal")});

 private:
    void take(int index, const Presser& presser);
    void clearPlayers();

    CardEngine& engine_;
};

}  // namespace zelvor
