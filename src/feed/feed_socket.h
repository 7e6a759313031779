#pragma once

#include <QTimer>
#include <QUdpSocket>
#include <deque>
#include <optional>

#include "feed/feed_status.h"
#include "feed/game_feed.h"

namespace zelvor {

// wsT, the datagram socket of the game feed. Datagrams are handled one at a time in their order; the time card is run
// when the newest has been handled. What arrives while it runs (it may let the event loop turn) waits its turn, unless
// the database is waited for.
class FeedSocket : public QObject {
    Q_OBJECT

 public:
    static constexpr quint16 kPort = 7699;
    // More than this waiting, and datagrams are left to the system until there is room.
    static constexpr std::size_t kMostWaiting = 20'000;
    static constexpr qsizetype kMostWaitingCharacters = qsizetype{16} * 1024 * 1024;

    // While messages come faster than they can be handled, the time card is run that often (milliseconds) all the same.
    static constexpr qint64 kLongestWithoutCard = 500;

    FeedSocket(GameFeed& feed, FeedStatus& status, Clock& clock);

    // Binds to the port on all interfaces, 0 for any free one. False when it cannot be bound; the status says why.
    bool bind(quint16 port = kPort);
    // The port it is bound to, 0 when it is not.
    [[nodiscard]] quint16 port() const { return socket_.localPort(); }
    [[nodiscard]] std::size_t waiting() const { return waiting_.size(); }

 private:
    // In steady milliseconds when it came.
    struct Datagram {
        QString text;
        qint64 arrived = 0;
    };

    void read();
    void takeArrived();
    void handleWaiting();
    [[nodiscard]] bool mayHandle() const;
    void handleSlice();
    void runTimeCard();
    void tellWaiting();
    [[nodiscard]] bool hasRoom() const;

    GameFeed& feed_;
    FeedStatus& status_;
    Clock& clock_;
    QUdpSocket socket_{this};
    QTimer next_{this};
    std::deque<Datagram> waiting_;
    qsizetype waitingCharacters_ = 0;
    bool handling_ = false;
    std::optional<qint64> cardDueSince_;  // steady milliseconds
};

}  // namespace zelvor
