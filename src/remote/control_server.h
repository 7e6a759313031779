#pragma once

#include "http/http_server.h"
#include "remote/event_feed.h"
#include "remote/gatekeeper.h"

namespace zelvor {

// The way in by HTTP: the interface under /api, its events over web sockets, and the page for a tablet.
class ControlServer : public QObject {
    Q_OBJECT

 public:
    struct Settings {
        QString hostName;  // as it was named
        QHostAddress address;
        quint16 port = 0;  // 0: any free one
        QByteArray token = {};
        std::optional<QSslConfiguration> tls = {};
    };

    // Both must outlive the server.
    ControlServer(RemoteConsole& console, StateWatch& watch, const Settings& settings);

    // On failure gives the reason, otherwise an empty text.
    QString listen();
    [[nodiscard]] quint16 port() const { return server_.port(); }

 private:
    void answer(const HttpRequest& request, const HttpReply& reply);
    [[nodiscard]] std::optional<HttpResponse> socketRefusal(const HttpRequest& request);

    RemoteConsole& console_;
    Settings settings_;
    Gatekeeper gatekeeper_;
    StateView view_;
    EventFeed feed_;
    HttpServer server_;
};

}  // namespace zelvor
