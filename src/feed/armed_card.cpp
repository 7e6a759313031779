#include "feed/armed_card.h"

#include <QScopedValueRollback>

namespace zelvor {

ArmedCard::ArmedCard(CardEngine& engine, UnattendedCards& cards, Asker::Kind kind, QString procedure, Which which)
    : QuietRules(engine.program().trap),
      cards_(cards),
      kind_(kind),
      procedure_(std::move(procedure)),
      which_(std::move(which)) {
    connect(&cards, &UnattendedCards::mayBeginAgain, this, [this] {
        if (due_ && !running_) fireSoon();
    });
}

void ArmedCard::fire() {
    due_ = running_ || !cards_.mayBegin();
    if (due_) return;
    // By value: the card may arm another one.
    const std::optional<QString> card = which_();
    if (!card) return;
    {
        const QScopedValueRollback running(running_, true);
        quietly(procedure_, [&] { cards_.run(*card, kind_); });
    }
    if (due_) fireSoon();
}

void ArmedCard::fireSoon() {
    QMetaObject::invokeMethod(
        this,
        [this] {
            if (due_) fire();
        },
        Qt::QueuedConnection);
}

}  // namespace zelvor
