#include "rehearsal/amcp_server.h"

#include <QTcpSocket>

#include "rehearsal/reply.h"

using namespace Qt::StringLiterals;

namespace zelvor::rehearsal {

namespace {

constexpr qint64 kReadBuffer = 256 << 10;

QString nameOf(const QTcpSocket& socket) {
    return u"%1:%2"_s.arg(socket.peerAddress().toString()).arg(socket.peerPort());
}

}  // namespace

AmcpServer::AmcpServer(AmcpInterpreter& interpreter, Journal& journal) : interpreter_(interpreter), journal_(journal) {
    connect(&listener_, &QTcpServer::newConnection, this, &AmcpServer::accept);
}

// The sockets go with the listener; nothing is to be noted about that.
AmcpServer::~AmcpServer() {
    for (const auto& entry : clients_) {
        entry.first->disconnect(this);
    }
}

bool AmcpServer::listen(const QHostAddress& address, quint16 port) {
    listener_.setListenBacklogSize(static_cast<int>(kMaxClients));
    return listener_.listen(address, port);
}

QString AmcpServer::address() const {
    return u"%1:%2"_s.arg(listener_.serverAddress().toString()).arg(listener_.serverPort());
}

void AmcpServer::accept() {
    while (QTcpSocket* socket = listener_.nextPendingConnection()) {
        if (clients_.size() >= kMaxClients) {
            journal_.add(Journal::Kind::Note, nameOf(*socket), u"turned away: too many clients"_s);
            socket->abort();
            socket->deleteLater();
            continue;
        }
        socket->setReadBufferSize(kReadBuffer);
        const QString name = nameOf(*socket);
        clients_.emplace(socket, Client{name, {}, AmcpClient{.id = ++lastId_}});
        journal_.add(Journal::Kind::Note, name, u"connected"_s);
        connect(socket, &QTcpSocket::readyRead, this, [this, socket] { read(socket); });
        connect(socket, &QTcpSocket::disconnected, this, [this, socket] { leave(socket); });
        Q_EMIT clientsChanged();
    }
}

void AmcpServer::read(QTcpSocket* socket) {
    const auto found = clients_.find(socket);
    if (found == clients_.end()) {
        return;
    }
    Client& client = found->second;
    client.lines.append(socket->readAll());
    while (const auto line = client.lines.next()) {
        answer(socket, client, *line);
        if (client.amcp.hasSaidBye) {
            socket->disconnectFromHost();  // leave() follows once the replies are read
            return;
        }
        if (socket->bytesToWrite() > kMaxUnread) {
            journal_.add(Journal::Kind::Note, client.name, u"dropped: does not read its replies"_s);
            socket->abort();  // leave() follows and lets go of the client
            return;
        }
    }
}

void AmcpServer::answer(QTcpSocket* socket, Client& client, const LineBuffer::Line& line) {
    const QString text = QString::fromUtf8(line.bytes);
    journal_.add(Journal::Kind::Received, client.name, line.overlong ? text + u"… (line too long)"_s : text);
    const QString reply = line.overlong ? reply::unknown(text) : interpreter_.answer(text, client.amcp);
    if (!reply.isEmpty()) {
        journal_.add(Journal::Kind::Sent, client.name, reply.trimmed());
        socket->write(reply.toUtf8());
    }
}

void AmcpServer::leave(QTcpSocket* socket) {
    const auto found = clients_.find(socket);
    if (found == clients_.end()) {
        return;
    }
    journal_.add(Journal::Kind::Note, found->second.name, u"disconnected"_s);
    interpreter_.leave(found->second.amcp);
    clients_.erase(found);
    lastLeft_ = QTime::currentTime();
    socket->deleteLater();
    Q_EMIT clientsChanged();
}

}  // namespace zelvor::rehearsal
