#include "feed/feed_socket.h"

#include <QElapsedTimer>
#include <QScopedValueRollback>

#include "base/translate.h"

using namespace Qt::StringLiterals;

namespace zelvor {

FeedSocket::FeedSocket(GameFeed& feed, FeedStatus& status, Clock& clock) : feed_(feed), status_(status), clock_(clock) {
    next_.setSingleShot(true);
    connect(&next_, &QTimer::timeout, this, &FeedSocket::handleWaiting);
    // Reading only queues: a slot of readyRead that lets the event loop turn would not be called for what arrives then.
    connect(&socket_, &QUdpSocket::readyRead, this, &FeedSocket::read);
    connect(&feed_, &GameFeed::cardMayRun, this, &FeedSocket::read);
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
        status_.notBound(taken ? translate("feed", "port in use") : socket_.errorString());
    }
    return bound;
}

bool FeedSocket::mayHandle() const {
    return !handling_ || feed_.onlyWrites();
}

bool FeedSocket::hasRoom() const {
    return waiting_.size() < kMostWaiting && waitingCharacters_ < kMostWaitingCharacters;
}

void FeedSocket::read() {
    takeArrived();
    tellWaiting();
    const bool isCardDue = cardDueSince_ && feed_.mayRunCard();
    if (mayHandle() && (!waiting_.empty() || isCardDue) && !next_.isActive()) next_.start(0);
}

void FeedSocket::takeArrived() {
    if (socket_.state() != QAbstractSocket::BoundState) return;  // the preview instance's
    constexpr qsizetype kLargestDatagram = 65536;
    QByteArray bytes(kLargestDatagram, Qt::Uninitialized);
    while (hasRoom()) {
        QHostAddress sender;
        // Until nothing is left: after a readyRead() without a read, all having been taken before it, Qt tells no more.
        const qint64 size = socket_.readDatagram(bytes.data(), bytes.size(), &sender);
        if (size < 0) break;
        waiting_.push_back({QString::fromLatin1(bytes.constData(), size), clock_.steadyMilliseconds()});
        waitingCharacters_ += waiting_.back().text.size();
        status_.arrived(sender);
    }
}

void FeedSocket::handleWaiting() {
    if (!mayHandle()) return;
    {
        const QScopedValueRollback busy(handling_, true);
        handleSlice();
        tellWaiting();
        const bool isNewest = waiting_.empty();
        if (cardDueSince_ && feed_.mayRunCard() &&
            (isNewest || clock_.steadyMilliseconds() - *cardDueSince_ > kLongestWithoutCard)) {
            runTimeCard();
        }
    }
    // Also takes what was left to the system while there was no room.
    read();
}

void FeedSocket::handleSlice() {
    constexpr qint64 kSlice = 10;  // milliseconds, then the form has its turn
    QElapsedTimer slice;
    slice.start();
    while (!waiting_.empty() && slice.elapsed() < kSlice) {
        const QString datagram = std::move(waiting_.front().text);
        waiting_.pop_front();
        waitingCharacters_ -= datagram.size();
        const GameFeed::Outcome outcome = feed_.handle(datagram);
        status_.handled(outcome);
        if (outcome == GameFeed::Outcome::Clock && !cardDueSince_) cardDueSince_ = clock_.steadyMilliseconds();
        // What has come meanwhile is newer.
        if (waiting_.empty()) takeArrived();
    }
}

void FeedSocket::runTimeCard() {
    cardDueSince_.reset();
    status_.cardBegins();
    feed_.runTimeCard();
    status_.cardEnds();
}

void FeedSocket::tellWaiting() {
    status_.waits(waiting_.size(), waiting_.empty() ? 0 : waiting_.front().arrived);
}

}  // namespace zelvor
