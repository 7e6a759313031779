#include "remote/osc_feedback.h"

#include <QJsonArray>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

const QString kState = u"/zelvor/state/"_s;
constexpr int kPace = 2;  // milliseconds
constexpr int kSentInTurn = 20;
constexpr std::size_t kMostQueued = 20'000;

void addCards(const QJsonObject& sets, std::vector<OscMessage>& messages) {
    for (auto set = sets.begin(); set != sets.end(); ++set) {
        const QJsonObject cards = (*set)["cards"_L1].toObject();
        for (auto card = cards.begin(); card != cards.end(); ++card) {
            const QString place = set.key() + u'/' + card.key();
            const QString trouble = (*card)["trouble"_L1].toString();
            messages.push_back({kState + u"card/"_s + place, {(*card)["on"_L1].toBool() ? 1 : 0}});
            messages.push_back({kState + u"last/"_s + place, {(*card)["last"_L1].toBool() ? 1 : 0}});
            messages.push_back({kState + u"caption/"_s + place, {(*card)["caption"_L1].toString()}});
            messages.push_back({kState + u"trouble/"_s + place, {trouble}});
        }
    }
}

}  // namespace

std::vector<OscMessage> oscState(const QJsonObject& state) {
    const auto text = [&state](QLatin1StringView part, QLatin1StringView name) {
        return state[part].toObject()[name].toString();
    };
    const auto score = [&state](QLatin1StringView side) {
        return state["scores"_L1].toObject()[side].toObject()["inUse"_L1].toString().toInt();
    };
    std::vector<OscMessage> messages{
        {kState + u"onair"_s, {text("onAir"_L1, "state"_L1), text("onAir"_L1, "card"_L1)}},
        {kState + u"trouble"_s, {text("onAir"_L1, "trouble"_L1)}},
        {kState + u"clock"_s, {text("clocks"_L1, "game"_L1)}},
        {kState + u"period"_s, {text("clocks"_L1, "period"_L1)}},
        {kState + u"score/home"_s, {score("home"_L1)}},
        {kState + u"score/away"_s, {score("away"_L1)}},
        {kState + u"set"_s, {state["set"_L1].toInt()}},
        {kState + u"question"_s, {text("question"_L1, "title"_L1)}},
        {kState + u"link/main"_s, {state["links"_L1].toObject()["main"_L1].toObject()["text"_L1].toString()}},
        {kState + u"link/remote"_s, {state["links"_L1].toObject()["remote"_L1].toObject()["text"_L1].toString()}},
    };
    addCards(state["sets"_L1].toObject(), messages);
    return messages;
}

OscFeedback::OscFeedback(StateWatch& watch, Send send) : watch_(watch), send_(std::move(send)) {
    clock_.start();
    pace_.setInterval(kPace);
    connect(&pace_, &QTimer::timeout, this, &OscFeedback::sendSome);
    connect(&watch, &StateWatch::changed, this, &OscFeedback::tell);
}

bool OscFeedback::subscribe(const Peer& peer) {
    const auto known = std::ranges::find(subscribers_, peer, &Subscriber::peer);
    if (known == subscribers_.end()) {
        if (subscribers_.size() >= kMostSubscribers) return false;
        watch_.join();
        tell();  // the others' share of what this one is told below
        subscribers_.push_back({peer, now() + kLasts});
    } else {
        known->until = now() + kLasts;
    }
    for (const OscMessage& message : oscState(watch_.state())) {
        told_[message.address] = message.arguments;
        queue(peer, message);
    }
    return true;
}

void OscFeedback::unsubscribe(const Peer& peer) {
    forget([&peer](const Subscriber& each) { return each.peer == peer; });
}

void OscFeedback::forget(const std::function<bool(const Subscriber&)>& isMeant) {
    const auto gone = std::erase_if(subscribers_, isMeant);
    for (std::size_t i = 0; i < gone; ++i) watch_.leave();
}

void OscFeedback::tell() {
    forget([this](const Subscriber& each) { return each.until < now(); });
    if (subscribers_.empty()) return;
    for (const OscMessage& message : oscState(watch_.state())) {
        if (std::exchange(told_[message.address], message.arguments) == message.arguments) continue;
        for (const Subscriber& each : subscribers_) queue(each.peer, message);
    }
}

// A whole state at once would be more than a listener's socket holds.
void OscFeedback::queue(const Peer& peer, const OscMessage& message) {
    if (queue_.size() >= kMostQueued) queue_.pop_front();
    queue_.emplace_back(peer, message);
    if (!pace_.isActive()) pace_.start();
}

void OscFeedback::sendSome() {
    for (int i = 0; i < kSentInTurn && !queue_.empty(); ++i) {
        const auto [peer, message] = queue_.front();
        queue_.pop_front();
        send_(peer, message);
    }
    if (queue_.empty()) pace_.stop();
}

}  // namespace zelvor
