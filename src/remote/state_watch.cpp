#include "remote/state_watch.h"

#include <utility>

namespace zelvor {

namespace {

// Milliseconds: how long changes are gathered, and how often is looked for what nothing announces, the variables.
constexpr int kGathered = 20;
constexpr int kOften = 250;

}  // namespace

StateWatch::StateWatch(RemoteConsole& console) : view_(console) {
    CardEngine& engine = console.engine();
    connect(&engine.form(), &FormModel::changed, this, &StateWatch::lookSoon);
    connect(&console.cards(), &CardConsole::cardsChanged, this, &StateWatch::lookSoon);
    connect(&engine.program().questions, &Questions::changed, this, &StateWatch::lookSoon);
    soon_.setSingleShot(true);
    soon_.setInterval(kGathered);
    often_.setInterval(kOften);
    connect(&soon_, &QTimer::timeout, this, &StateWatch::look);
    connect(&often_, &QTimer::timeout, this, &StateWatch::look);
}

const QJsonObject& StateWatch::join() {
    if (++watchers_ == 1) {
        state_ = view_.whole();
        often_.start();
    } else {
        look();
    }
    return state_;
}

void StateWatch::leave() {
    if (--watchers_ > 0) return;
    often_.stop();
    soon_.stop();
}

void StateWatch::lookSoon() {
    if (watchers_ > 0 && !soon_.isActive()) soon_.start();
}

void StateWatch::look() {
    soon_.stop();
    const QJsonObject now = view_.whole();
    const std::vector<StateChange> changes = changesBetween(std::exchange(state_, now), now);
    if (!changes.empty()) Q_EMIT changed(changes);
}

}  // namespace zelvor
