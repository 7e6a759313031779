#include "remote/event_feed.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

constexpr quint64 kMostIncoming = 1024;  // bytes; clients only listen

QString asText(const QJsonObject& message) {
    return QString::fromUtf8(QJsonDocument(message).toJson(QJsonDocument::Compact));
}

}  // namespace

EventFeed::EventFeed(RemoteConsole& console, StateWatch& watch) : watch_(watch) {
    CardEngine& engine = console.engine();
    connect(&watch, &StateWatch::changed, this, [this](const std::vector<StateChange>& changes) {
        for (const StateChange& change : changes)
            tell({{u"path"_s, change.path}, {u"value"_s, change.value}}, u"changed"_s);
    });
    connect(&engine.runs(), &CardRuns::begun, this, [this](const Asker& asker) {
        QJsonObject fired{
            {u"run"_s, asker.run}, {u"script"_s, CardEngine::scriptName(asker.card)}, {u"from"_s, asker.presser.from}};
        if (asker.place) {
            fired.insert(u"set"_s, asker.place->set);
            fired.insert(u"row"_s, asker.place->index + 1);
        }
        tell(fired, u"fired"_s);
    });
    connect(&engine.runs(), &CardRuns::ended, this, [this](const Asker& asker, RunOutcome outcome) {
        tell({{u"run"_s, asker.run}, {u"outcome"_s, outcomeText(outcome)}}, u"ended"_s);
    });
}

void EventFeed::join(std::unique_ptr<QWebSocket> socket) {
    watch_.join();
    QWebSocket* const client = socket.get();
    client->setMaxAllowedIncomingFrameSize(kMostIncoming);
    client->setMaxAllowedIncomingMessageSize(kMostIncoming);
    connect(client, &QWebSocket::disconnected, this, [this, client] { leave(client); });
    connect(client, &QWebSocket::bytesWritten, this, [this, client] { catchUp(client); });
    clients_.push_back({std::move(socket)});
    sendState(clients_.back());
}

void EventFeed::tell(QJsonObject message, const QString& event) {
    if (clients_.empty()) return;
    message.insert(u"event"_s, event);
    message.insert(u"number"_s, ++number_);
    const QString text = asText(message);
    for (Client& client : clients_) {
        if (client.behind) continue;
        client.behind = client.socket->bytesToWrite() > kMostUnread;
        client.socket->sendTextMessage(client.behind ? asText({{u"event"_s, u"behind"_s}, {u"number"_s, number_}})
                                                     : text);
    }
}

void EventFeed::sendState(Client& client) {
    client.socket->sendTextMessage(
        asText({{u"event"_s, u"state"_s}, {u"number"_s, number_}, {u"state"_s, watch_.state()}}));
}

void EventFeed::catchUp(QWebSocket* socket) {
    const auto client = std::ranges::find(clients_, socket, [](const Client& each) { return each.socket.get(); });
    if (client == clients_.end() || !client->behind || socket->bytesToWrite() > 0) return;
    client->behind = false;
    sendState(*client);
}

void EventFeed::leave(QWebSocket* socket) {
    const auto client = std::ranges::find(clients_, socket, [](const Client& each) { return each.socket.get(); });
    if (client == clients_.end()) return;
    client->socket.release()->deleteLater();  // it is the sender of the signal that brought us here
    clients_.erase(client);
    watch_.leave();
}

}  // namespace zelvor
