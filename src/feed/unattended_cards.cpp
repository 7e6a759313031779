#include "feed/unattended_cards.h"

#include "base/translate.h"

using namespace Qt::StringLiterals;

namespace zelvor {

UnattendedCards::UnattendedCards(CardEngine& engine) : engine_(engine) {
    connect(&engine.program().databaseWait, &DatabaseWait::ranOut, this, [this](const Asker& asker) {
        if (!asker.isAttended()) troubles_[CardEngine::scriptName(asker.card)].now = true;
    });
    connect(&engine.program().databaseWait, &DatabaseWait::over, this, &UnattendedCards::mayBeginAgain);
    connect(&engine.program().pressRoom, &PressRoom::ended, this, &UnattendedCards::mayBeginAgain);
    shown_.setSingleShot(true);
    connect(&shown_, &QTimer::timeout, this, &UnattendedCards::showPaused);
}

void UnattendedCards::run(const QString& card, Asker::Kind kind) {
    const QString script = CardEngine::scriptName(card);
    const auto known = troubles_.find(script);
    if (known != troubles_.end() && known->second.pausedTo > now()) return;
    using Outcome = CardEngine::Outcome;
    const Outcome outcome = engine_.SHOW_TVCARD(card, false, false, {kind, card});
    const auto found = troubles_.find(script);
    if (found == troubles_.end()) return;
    if (std::exchange(found->second.now, false)) {
        take(script, found->second);
    } else if (outcome != Outcome::Cleared && outcome != Outcome::Closed) {
        troubles_.erase(found);
    }
    showPaused();
}

void UnattendedCards::take(const QString& card, Trouble& trouble) {
    constexpr int kAllowedInARow = 2;
    if (++trouble.inARow < kAllowedInARow) return;
    int pause = kFirstPause;
    for (int i = kAllowedInARow; i < trouble.inARow && pause < kLongestPause; ++i) pause *= 2;
    pause = std::min(pause, kLongestPause);
    trouble.pausedTo = now() + pause;
    engine_.program().trap.warn({u"mDATABASE.RUN_QUERY"_s, 0, {Asker::Kind::TimedCard, card, {}, {card}}},
                                u"The card rests for %1 s."_s.arg(pause / 1000));
}

void UnattendedCards::showPaused() {
    QStringList cards;
    qint64 next = std::numeric_limits<qint64>::max();
    for (const auto& [card, trouble] : troubles_) {
        if (trouble.pausedTo <= now()) continue;
        cards += card;
        next = std::min(next, trouble.pausedTo - now());
    }
    Control& label = engine_.form().at(controls.lblBACKOFF);
    if (cards.isEmpty()) {
        shown_.stop();
        label.setText({});
        return;
    }
    shown_.start(static_cast<int>(next));
    const QString time = engine_.ports().clock.now().addMSecs(next).toString(u"HH:mm:ss"_s);
    const QString whose = cards.size() == 1 ? cards.constFirst() : translate("feed", "%1 cards").arg(cards.size());
    label.setText(translate("feed", "%1 rests until %2: no answer from the database in time").arg(whose, time));
}

}  // namespace zelvor
