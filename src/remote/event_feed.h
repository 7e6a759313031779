#pragma once

#include <QWebSocket>
#include <memory>
#include <vector>

#include "remote/state_watch.h"

namespace zelvor {

// Keeps those who look on up to date over web sockets: each gets the whole state when it joins, then every change in
// order, each message with the next number. One that falls behind is told so and gets the state anew.
class EventFeed : public QObject {
    Q_OBJECT

 public:
    static constexpr std::size_t kMostClients = 32;
    static constexpr qint64 kMostUnread = qint64{1} << 20;  // bytes on the way to one client

    // All must outlive the feed.
    EventFeed(RemoteConsole& console, StateWatch& watch);

    [[nodiscard]] bool isFull() const { return clients_.size() >= kMostClients; }
    void join(std::unique_ptr<QWebSocket> socket);
    // The number of the newest message.
    [[nodiscard]] qint64 number() const { return number_; }

 private:
    struct Client {
        std::unique_ptr<QWebSocket> socket;
        bool behind = false;
    };
    void tell(QJsonObject message, const QString& event);
    void sendState(Client& client);
    void catchUp(QWebSocket* socket);
    void leave(QWebSocket* socket);

    StateWatch& watch_;
    std::vector<Client> clients_;
    qint64 number_ = 0;
};

}  // namespace zelvor
