#include "rehearsal/viewer_feed.h"

#include <QJsonDocument>
#include <algorithm>
#include <chrono>

#include "rehearsal/page_state.h"

using namespace Qt::StringLiterals;

namespace zelvor::rehearsal {

namespace {

constexpr std::chrono::milliseconds kBatch{20};
constexpr quint64 kMaxIncoming = 1024;  // pages only listen

QByteArray asMessage(const QJsonArray& events) {
    return QJsonDocument(QJsonObject{{u"events"_s, events}}).toJson(QJsonDocument::Compact);
}

template <typename Lines>
QJsonObject linesEvent(const Lines& lines) {
    QJsonArray array;
    std::copy(lines.begin(), lines.end(), std::back_inserter(array));
    return {{u"event"_s, u"lines"_s}, {u"lines"_s, array}};
}

}  // namespace

ViewerFeed::ViewerFeed(const Stage& stage, const Journal& journal, const AmcpServer& console)
    : stage_(stage), journal_(journal), console_(console) {
    connect(&stage, &Stage::layerChanged, this, [this](LayerAddress at) {
        add({{u"event"_s, u"layer"_s},
             {u"channel"_s, at.channel},
             {u"number"_s, at.layer},
             {u"layer"_s, layerAsJson(stage_, at)}});
    });
    connect(&stage, &Stage::called, this, [this](quint64 sourceId, const TemplateCall& call) {
        add({{u"event"_s, u"calls"_s},
             {u"id"_s, static_cast<qint64>(sourceId)},
             {u"calls"_s, QJsonArray{callAsJson(call)}},
             {u"settle"_s, false}});
    });
    connect(&stage, &Stage::moved, this, [this](LayerAddress at) {
        const auto layer = stage_.layers(at.channel).find(at.layer);
        if (layer != stage_.layers(at.channel).end()) {
            const Source& source = layer->second.foreground;
            add({{u"event"_s, u"calls"_s},
                 {u"id"_s, static_cast<qint64>(source.id)},
                 {u"calls"_s, callsAsJson(source)},
                 {u"settle"_s, true}});
        }
    });
    connect(&stage, &Stage::modeChanged, this, [this](int channel) {
        add({{u"event"_s, u"mode"_s}, {u"channel"_s, channel}, {u"mode"_s, modeAsJson(stage_.mode(channel))}});
    });
    connect(&journal, &Journal::added, this, &ViewerFeed::addLine);
    connect(&console, &AmcpServer::clientsChanged, this, [this] { add(consoleEvent()); });
    batch_.setSingleShot(true);
    batch_.setInterval(kBatch);
    connect(&batch_, &QTimer::timeout, this, &ViewerFeed::flush);
}

void ViewerFeed::join(std::unique_ptr<QWebSocket> socket) {
    if (viewers_.size() >= kMaxViewers) {
        socket.release()->deleteLater();  // Qt still works on it when it hands it over
        return;
    }
    flush();  // what is still to be sent is part of the state that follows
    QWebSocket* const viewer = socket.get();
    viewer->setMaxAllowedIncomingFrameSize(kMaxIncoming);
    viewer->setMaxAllowedIncomingMessageSize(kMaxIncoming);
    connect(viewer, &QWebSocket::disconnected, this, [this, viewer] { leave(viewer); });
    connect(viewer, &QWebSocket::bytesWritten, this, [this, viewer] { catchUp(viewer); });
    viewers_.push_back({std::move(socket)});
    viewer->sendTextMessage(QString::fromUtf8(wholeState()));
}

void ViewerFeed::add(const QJsonObject& event) {
    if (viewers_.empty()) {
        return;
    }
    events_.append(event);
    if (!batch_.isActive()) {
        batch_.start();
    }
}

void ViewerFeed::addLine(const Journal::Line& line) {
    if (viewers_.empty()) {
        return;
    }
    lines_.push_back(lineAsJson(line));
    if (lines_.size() > Journal::kMaxLines) {
        lines_.pop_front();
    }
    if (!batch_.isActive()) {
        batch_.start();
    }
}

void ViewerFeed::flush() {
    batch_.stop();
    if (!lines_.empty()) {
        events_.append(linesEvent(lines_));
    }
    lines_.clear();
    const QJsonArray events = std::exchange(events_, {});
    if (events.isEmpty() || viewers_.empty()) {
        return;
    }
    const QString message = QString::fromUtf8(asMessage(events));
    for (Viewer& viewer : viewers_) {
        viewer.behind = viewer.behind || viewer.socket->bytesToWrite() > kMaxUnread;
        if (!viewer.behind) {
            viewer.socket->sendTextMessage(message);
        }
    }
}

void ViewerFeed::catchUp(QWebSocket* socket) {
    const auto viewer = std::ranges::find(viewers_, socket, [](const Viewer& each) { return each.socket.get(); });
    if (viewer != viewers_.end() && viewer->behind && socket->bytesToWrite() == 0) {
        viewer->behind = false;
        socket->sendTextMessage(QString::fromUtf8(wholeState()));
    }
}

void ViewerFeed::leave(QWebSocket* socket) {
    const auto viewer = std::ranges::find(viewers_, socket, [](const Viewer& each) { return each.socket.get(); });
    if (viewer != viewers_.end()) {
        viewer->socket.release()->deleteLater();  // it is the sender of the signal that brought us here
        viewers_.erase(viewer);
    }
}

QJsonObject ViewerFeed::consoleEvent() const {
    return {{u"event"_s, u"console"_s},
            {u"clients"_s, console_.clientCount()},
            {u"address"_s, console_.address()},
            {u"lastLeft"_s, console_.lastLeft().toString(u"HH:mm:ss"_s)}};
}

QByteArray ViewerFeed::wholeState() const {
    std::vector<QJsonObject> lines;
    for (const Journal::Line& line : journal_.lines()) {
        lines.push_back(lineAsJson(line));
    }
    return asMessage({QJsonObject{{u"event"_s, u"state"_s}, {u"channels"_s, channelsAsJson(stage_)}}, consoleEvent(),
                      linesEvent(lines)});
}

}  // namespace zelvor::rehearsal
