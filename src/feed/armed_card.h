#pragma once

#include <functional>

#include "feed/quiet_rules.h"
#include "feed/unattended_cards.h"

namespace zelvor {

// The card of the clock, which follows each of its seconds. It never runs inside itself, nor while none may begin:
// what falls into that time is one run afterwards.
class ArmedCard : public QuietRules {
    Q_OBJECT

 public:
    // The armed card; nullopt while it is switched off.
    using Which = std::function<std::optional<QString>()>;

    // procedure: of the event that it follows, as errors name it.
    ArmedCard(CardEngine& engine, UnattendedCards& cards, Asker::Kind kind, QString procedure, Which which);

    void fire();
    // What is still to be run afterwards is not.
    void forget() { due_ = false; }

 private:
    void fireSoon();

    UnattendedCards& cards_;
    Asker::Kind kind_;
    QString procedure_;
    Which which_;
    bool running_ = false;
    bool due_ = false;
};

}  // namespace zelvor
