#pragma once

#include <QStringList>
#include <QTcpServer>
#include <QTcpSocket>

namespace zelvor::test {

// A graphics server of the test's own for one connection: keeps what it is sent, and answers each line when told to.
class LineServer : public QTcpServer {
 public:
    enum class Manner { Answers, Listens, NeverReads };

    explicit LineServer(Manner manner = Manner::Answers) {
        connect(this, &QTcpServer::newConnection, this, [this, manner] {
            peer = nextPendingConnection();
            if (manner == Manner::NeverReads) return peer->setReadBufferSize(1);
            connect(peer, &QTcpSocket::readyRead, this, [this, manner, from = peer] {
                const QByteArray read = from->readAll();
                bytes += read;
                if (manner == Manner::Answers) from->write(QByteArray("202 CG OK\r\n").repeated(read.count('\n')));
            });
        });
        listen(QHostAddress::LocalHost, 0);
    }
    QString port() const { return QString::number(serverPort()); }
    // What has come since the last take, line by line.
    QStringList takeLines() {
        QStringList lines = QString::fromUtf8(std::exchange(bytes, {})).split(QStringLiteral("\r\n"));
        lines.removeLast();
        return lines;
    }
    // The server goes away.
    void stop() {
        close();
        peer->disconnectFromHost();
    }

    QByteArray bytes;
    QTcpSocket* peer = nullptr;
};

}  // namespace zelvor::test
