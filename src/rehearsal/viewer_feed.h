#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QTimer>
#include <QWebSocket>
#include <deque>
#include <memory>
#include <vector>

#include "rehearsal/amcp_server.h"
#include "rehearsal/journal.h"
#include "rehearsal/stage.h"

namespace zelvor::rehearsal {

// Keeps the pages that look on up to date: each gets the whole state when it joins and every change from then on, in
// small batches. A page that cannot keep up misses changes and gets the whole state again once it has caught up.
class ViewerFeed : public QObject {
    Q_OBJECT

 public:
    static constexpr std::size_t kMaxViewers = 50;
    static constexpr qint64 kMaxUnread = qint64{8} << 20;  // bytes on the way to one page

    // All must outlive the feed.
    ViewerFeed(const Stage& stage, const Journal& journal, const AmcpServer& console);

    // Takes over a page's connection; one too many is closed again.
    void join(std::unique_ptr<QWebSocket> socket);

 private:
    struct Viewer {
        std::unique_ptr<QWebSocket> socket;
        bool behind = false;
    };

    void add(const QJsonObject& event);
    void addLine(const Journal::Line& line);
    void flush();
    void catchUp(QWebSocket* socket);
    void leave(QWebSocket* socket);
    [[nodiscard]] QJsonObject consoleEvent() const;
    [[nodiscard]] QByteArray wholeState() const;

    const Stage& stage_;
    const Journal& journal_;
    const AmcpServer& console_;
    std::vector<Viewer> viewers_;
    QJsonArray events_;              // not sent yet
    std::deque<QJsonObject> lines_;  // not sent yet, at most Journal::kMaxLines
    QTimer batch_;
};

}  // namespace zelvor::rehearsal
