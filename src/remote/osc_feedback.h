#pragma once

#include <QElapsedTimer>
#include <QHostAddress>
#include <QObject>
#include <QTimer>
#include <deque>
#include <functional>
#include <map>
#include <vector>

#include "remote/osc_packet.h"
#include "remote/state_watch.h"

namespace zelvor {

// Tells those who have subscribed by OSC what changes: /zelvor/state/... A subscription lasts for a minute and is
// renewed by another one.
class OscFeedback : public QObject {
    Q_OBJECT

 public:
    static constexpr std::size_t kMostSubscribers = 16;
    static constexpr qint64 kLasts = 60'000;  // milliseconds

    struct Peer {
        QHostAddress address;
        quint16 port = 0;
        bool operator==(const Peer&) const = default;
    };
    using Send = std::function<void(const Peer& peer, const OscMessage& message)>;

    // watch: outlives it.
    OscFeedback(StateWatch& watch, Send send);

    // Tells the peer the whole state and its changes from then on; false when there are too many.
    bool subscribe(const Peer& peer);
    void unsubscribe(const Peer& peer);

 private:
    struct Subscriber {
        Peer peer;
        qint64 until = 0;
    };
    void tell();
    void queue(const Peer& peer, const OscMessage& message);
    void sendSome();
    void forget(const std::function<bool(const Subscriber&)>& isMeant);
    [[nodiscard]] qint64 now() const { return clock_.elapsed(); }

    StateWatch& watch_;
    Send send_;
    QElapsedTimer clock_;
    std::vector<Subscriber> subscribers_;
    std::map<QString, QVariantList> told_;  // by address, to all of them
    std::deque<std::pair<Peer, OscMessage>> queue_;
    QTimer pace_;
};

// What of a state is told by OSC: a message each, /zelvor/state/card/1/3 with 1 while it is on.
std::vector<OscMessage> oscState(const QJsonObject& state);

}  // namespace zelvor
