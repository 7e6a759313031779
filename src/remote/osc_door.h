#pragma once

#include <QUdpSocket>

#include "remote/osc_feedback.h"
#include "remote/remote_console.h"

namespace zelvor {

// The way in by OSC: /zelvor/card/1/3, /zelvor/clear, ... The answers go to those who have subscribed. Who is neither
// on this computer nor named is not heard.
class OscDoor : public QObject {
    Q_OBJECT

 public:
    // Both must outlive the door.
    OscDoor(RemoteConsole& console, StateWatch& watch, const QList<QHostAddress>& allowed);

    // Port 0 takes a free one. On failure gives the reason, otherwise an empty text.
    QString listen(const QHostAddress& address, quint16 port);
    [[nodiscard]] quint16 port() const { return socket_.localPort(); }

    // What a message asks for; false when there is no such address, or its arguments are none of it.
    bool take(const OscMessage& message, const OscFeedback::Peer& peer);

 private:
    void read();
    void takePacket(const QByteArray& packet, const OscFeedback::Peer& peer);
    bool takeScore(const QStringList& path, const QVariant& argument, const RemoteConsole::Request& request);
    bool takeSubscription(const QString& word, const QVariant& argument, OscFeedback::Peer peer);
    void send(const OscFeedback::Peer& peer, const OscMessage& message);

    RemoteConsole& console_;
    QList<QHostAddress> allowed_;
    QUdpSocket socket_;
    OscFeedback feedback_;
};

}  // namespace zelvor
