#include "feed/feed_socket.h"

#include <QElapsedTimer>
#include <QScopedValueRollback>

using namespace Qt::StringLiterals;

namespace zelvor {

FeedSocket::FeedSocket(GameFeed& feed, FeedStatus& status) : feed_(feed), status_(status) {
    next_.setSingleShot(true);
    connect(&next_, &QTimer::timeout, this, &FeedSocket::handleWaiting);
    // Reading only queues: a slot of readyRead that lets the event loop turn would not be called for what arrives then.
    connect(&socket_, &QUdpSocket::readyRead, this, &FeedSocket::read);
}

bool FeedSocket::bind(quint16 port) {
    socket_.close();
    // Not shared: a second console on the same machine must hear that the port is taken.
    const bool bound = socket_.bind(QHostAddress::Any, port, QAbstractSocket::DontShareAddress);
    if (bound) {
        constexpr int kReceiveBuffer = 4 * 1024 * 1024;
        socket_.setSocketOption(QAbstractSocket::ReceiveBufferSizeSocketOption, kReceiveBuffer);
        status_.bound(socket_.localPort());
    } else {
        const bool taken = socket_.error() == QAbstractSocket::AddressInUseError;
        status_.notBound(taken ? u"port in use"_s : socket_.errorString());
    }
    return bound;
}

bool FeedSocket::hasRoom() const {
    return waiting_.size() < kMostWaiting && waitingCharacters_ < kMostWaitingCharacters;
}

void FeedSocket::read() {
    constexpr qint64 kLargestDatagram = 65536;
    while (hasRoom() && socket_.hasPendingDatagrams()) {
        QByteArray bytes(qBound(qint64{0}, socket_.pendingDatagramSize(), kLargestDatagram), Qt::Uninitialized);
        const qint64 size = socket_.readDatagram(bytes.data(), bytes.size());
        if (size < 0) break;
        waiting_.push_back(QString::fromLatin1(bytes.constData(), size));
        waitingCharacters_ += waiting_.back().size();
        status_.arrived();
    }
    if (!handling_ && !waiting_.empty() && !next_.isActive()) next_.start(0);
}

void FeedSocket::handleWaiting() {
    if (handling_) return;
    constexpr qint64 kSlice = 10;  // milliseconds, then the form has its turn
    {
        const QScopedValueRollback busy(handling_, true);
        QElapsedTimer slice;
        slice.start();
        while (!waiting_.empty() && slice.elapsed() < kSlice) {
            const QString datagram = std::move(waiting_.front());
            waiting_.pop_front();
            waitingCharacters_ -= datagram.size();
            status_.handled(feed_.handle(datagram));
        }
    }
    // Also takes what was left to the system while there was no room.
    read();
}

}  // namespace zelvor
