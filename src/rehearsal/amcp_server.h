#pragma once

#include <QHostAddress>
#include <QTcpServer>
#include <QTime>
#include <memory>
#include <unordered_map>

#include "rehearsal/amcp_interpreter.h"
#include "rehearsal/journal.h"
#include "rehearsal/line_buffer.h"

namespace zelvor::rehearsal {

// Takes AMCP connections, answers their lines in the order they come and writes both into the journal.
class AmcpServer : public QObject {
    Q_OBJECT

 public:
    static constexpr std::size_t kMaxClients = 500;
    static constexpr qint64 kMaxUnread = qint64{8} << 20;  // bytes of replies a client may leave unread

    // Both must outlive the server.
    AmcpServer(AmcpInterpreter& interpreter, Journal& journal);
    ~AmcpServer() override;
    Q_DISABLE_COPY_MOVE(AmcpServer)

    // Port 0 takes a free one. False when it cannot listen; errorString() says why.
    bool listen(const QHostAddress& address, quint16 port);
    [[nodiscard]] quint16 port() const { return listener_.serverPort(); }
    [[nodiscard]] QString errorString() const { return listener_.errorString(); }

    // "address:port", as a console is told to connect.
    [[nodiscard]] QString address() const;

    [[nodiscard]] int clientCount() const { return static_cast<int>(clients_.size()); }
    // When a client last went; invalid while none has.
    [[nodiscard]] QTime lastLeft() const { return lastLeft_; }

 Q_SIGNALS:
    // A client came or went.
    void clientsChanged();

 private:
    struct Client {
        QString name;
        LineBuffer lines;
        AmcpClient amcp;
    };

    void accept();
    void read(QTcpSocket* socket);
    void answer(QTcpSocket* socket, Client& client, const LineBuffer::Line& line);
    void leave(QTcpSocket* socket);

    AmcpInterpreter& interpreter_;
    Journal& journal_;
    std::unordered_map<QTcpSocket*, Client> clients_;
    ChannelLocks::ClientId lastId_ = 0;
    QTime lastLeft_;
    QTcpServer listener_;  // goes first, and its sockets with it
};

}  // namespace zelvor::rehearsal
