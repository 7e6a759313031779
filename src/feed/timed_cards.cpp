#include "feed/timed_cards.h"

#include <QScopedValueRollback>

#include "base/number.h"

using namespace Qt::StringLiterals;

namespace zelvor {

TimedCards::TimedCards(CardEngine& engine, UnattendedCards& cards)
    : QuietRules(engine.program().trap), engine_(engine), cards_(cards) {
    timer_.setObjectName(u"tmrCARD"_s);
    timer_.setInterval(kInterval);
    connect(&timer_, &QTimer::timeout, this, &TimedCards::tick);
}

void TimedCards::start() {
    timer_.start();
}

void TimedCards::tick() {
    if (ticking_) return;
    const QScopedValueRollback busy(ticking_, true);
    const bool runs = timer_.isActive();
    timer_.stop();
    quietly(u"tmrCARD_Timer"_s, [&] { count(); });
    if (runs && !engine_.program().closing.hasBegun()) timer_.start();
}

void TimedCards::count() {
    // By number: a card that waits may see another card table loaded.
    std::vector<TimedCard>& cards = engine_.state().cards.timedCards;
    for (std::size_t i = 0; i < cards.size(); ++i) {  // NOLINT(modernize-loop-convert)
        // It never fires; counting it up to its overflow would end the tick before the cards behind it.
        if (cards[i].interval <= 0) continue;
        const qint16 ticks = wholeNumber16(cards[i].ticks + 1.0);
        if (ticks == cards[i].interval && !cards_.mayBegin()) continue;
        cards[i].ticks = ticks;
        if (cards[i].ticks != cards[i].interval) continue;
        cards[i].ticks = 0;
        const QString card = cards[i].card;
        cards_.run(card, Asker::Kind::TimedCard);
    }
}

}  // namespace zelvor
