#pragma once

#include <QDeadlineTimer>
#include <QObject>
#include <QString>
#include <QTcpSocket>

#include "link/reply_decoder.h"

namespace zelvor {

// What a link is doing, with the number the log shows for it. Open and Connected count as sendable.
enum class LinkState {
    Closed = 0,
    Open = 1,
    Resolving = 4,
    Connecting = 6,
    Connected = 7,
    PeerClosing = 8,
    Error = 9,
};

constexpr bool isSendable(LinkState state) {
    return state == LinkState::Connected || state == LinkState::Open;
}

// One TCP connection to a CasparCG server: lines out, texts of replies in. After a failure or a close by the server
// it keeps state 9 or 8 until it is closed or connected again; it never reconnects by itself.
class CasparLink : public QObject {
    Q_OBJECT

 public:
    // With more unsent bytes than this the link goes to state 9: the server has stopped reading.
    static constexpr qint64 kLargestUnsent = qint64{16} * 1024 * 1024;
    // The most bytes taken as one received text.
    static constexpr qint64 kLargestPiece = qint64{64} * 1024;

    explicit CasparLink(QObject* parent = nullptr);
    CasparLink(const CasparLink&) = delete;
    CasparLink& operator=(const CasparLink&) = delete;
    ~CasparLink() override;

    // 0 for a text that is no port.
    static quint16 portNumber(const QString& text);

    // Starts connecting, after closing what was there. A host or port of no use (any text is taken) leads to state 9.
    void connectTo(const QString& host, const QString& port);
    // Closes at once: state 0, what is unsent is dropped.
    void close();
    // Hands over the line, which must hold no line break, and CR LF in one piece. Nothing when not connected.
    void send(const QString& line);
    // Waits, without handling events, until all has been handed to the network or the deadline has passed.
    void finishSending(QDeadlineTimer deadline);

    [[nodiscard]] LinkState state() const { return state_; }
    // Why the link is in state 8 or 9, in words; empty in other states.
    [[nodiscard]] const QString& errorText() const { return errorText_; }
    [[nodiscard]] qint64 unsentBytes() const { return socket_.bytesToWrite(); }

 Q_SIGNALS:
    void stateChanged(zelvor::LinkState state);
    // What has arrived, as it is; before received().
    void arrived(const QByteArray& bytes);
    // Text that has arrived, every CR LF in it removed.
    void received(const QString& text);

 private:
    void followSocket();
    void enter(LinkState state, const QString& errorText = {});
    void enterClosedByServer();
    void dropConnection();
    void readReplies();

    LinkState state_ = LinkState::Closed;
    QString errorText_;
    ReplyDecoder decoder_;
    QTcpSocket socket_{this};
};

}  // namespace zelvor
