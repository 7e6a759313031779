#include "link/caspar_link.h"

#include <QNetworkProxy>
#include <QSignalBlocker>

#include "base/translate.h"
#include "system/socket_calls.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

QString reasonOf(const QAbstractSocket& socket) {
    return socket.error() == QAbstractSocket::SocketTimeoutError ? translate("link", "timed out")
                                                                 : socket.errorString();
}

}  // namespace

CasparLink::CasparLink(QObject* parent) : QObject(parent) {
    socket_.setProxy(QNetworkProxy::NoProxy);
    connect(&socket_, &QTcpSocket::stateChanged, this, &CasparLink::followSocket);
    connect(&socket_, &QTcpSocket::errorOccurred, this, &CasparLink::followSocket);
    connect(&socket_, &QTcpSocket::readyRead, this, &CasparLink::readReplies);
}

quint16 CasparLink::portNumber(const QString& text) {
    return text.trimmed().toUShort();
}

CasparLink::~CasparLink() {
    dropConnection();
}

void CasparLink::connectTo(const QString& host, const QString& port) {
    dropConnection();
    decoder_.reset();
    const quint16 number = portNumber(port);
    if (number == 0) {
        enter(LinkState::Error, translate("link", "port \"%1\" is not a number from 1 to 65535").arg(port));
    } else if (host.trimmed().isEmpty()) {
        enter(LinkState::Error, translate("link", "no address"));
    } else {
        socket_.connectToHost(host.trimmed(), number);
    }
}

void CasparLink::close() {
    dropConnection();
    enter(LinkState::Closed);
}

void CasparLink::send(const QString& line) {
    if (state_ != LinkState::Connected) return;
    const QByteArray bytes = line.toUtf8() + "\r\n";
    // Past the socket, which would have the event loop watch until it may write.
    const qint64 taken = unsentBytes() == 0 ? sendAtOnce(socket_.socketDescriptor(), bytes) : 0;
    if (taken < 0) {
        const QString reason = qt_error_string();
        dropConnection();
        return enter(LinkState::Error, reason);
    }
    if (taken < bytes.size()) {
        socket_.write(bytes.constData() + taken, bytes.size() - taken);
        socket_.flush();
    }
    if (unsentBytes() <= kLargestUnsent) return;
    discardOnClose(socket_.socketDescriptor());
    dropConnection();
    enter(LinkState::Error, translate("link", "the server does not read"));
}

void CasparLink::finishSending(QDeadlineTimer deadline) {
    while (state_ == LinkState::Connected && unsentBytes() > 0 && !deadline.hasExpired())
        socket_.waitForBytesWritten(static_cast<int>(deadline.remainingTime()));
}

void CasparLink::dropConnection() {
    const QSignalBlocker quiet(socket_);
    socket_.abort();
}

void CasparLink::followSocket() {
    switch (socket_.state()) {
        case QAbstractSocket::HostLookupState:
            return enter(LinkState::Resolving);
        case QAbstractSocket::ConnectingState:
            return enter(LinkState::Connecting);
        case QAbstractSocket::BoundState:
        case QAbstractSocket::ListeningState:
            return enter(LinkState::Open);
        case QAbstractSocket::ConnectedState:
            if (socket_.error() == QAbstractSocket::RemoteHostClosedError) return enterClosedByServer();
            socket_.setSocketOption(QAbstractSocket::LowDelayOption, 1);
            endWithDeadPeer(socket_.socketDescriptor());
            return enter(LinkState::Connected);
        case QAbstractSocket::ClosingState:
            // Any other failure is known when the socket has closed.
            if (socket_.error() == QAbstractSocket::RemoteHostClosedError) enterClosedByServer();
            return;
        case QAbstractSocket::UnconnectedState:
            if (socket_.error() == QAbstractSocket::RemoteHostClosedError) return enterClosedByServer();
            return enter(LinkState::Error, reasonOf(socket_));
    }
}

void CasparLink::enterClosedByServer() {
    enter(LinkState::PeerClosing, translate("link", "the server closed"));
}

void CasparLink::enter(LinkState state, const QString& errorText) {
    errorText_ = errorText;
    if (state_ == state) return;
    state_ = state;
    Q_EMIT stateChanged(state);
}

void CasparLink::readReplies() {
    while (socket_.bytesAvailable() > 0) {
        const QByteArray bytes = socket_.read(kLargestPiece);
        Q_EMIT arrived(bytes);
        if (const auto text = decoder_.feed(bytes)) Q_EMIT received(*text);
    }
}

}  // namespace zelvor
