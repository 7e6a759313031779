#pragma once

#include <QSslConfiguration>
#include <QTcpServer>
#include <QWebSocketServer>
#include <functional>
#include <memory>
#include <optional>

#include "http/http_connection.h"

namespace zelvor {

// A small HTTP server with limits on everything that a client may send, and web sockets.
class HttpServer : public QObject {
    Q_OBJECT

 public:
    static constexpr int kMostConnections = 64;

    using Handler = std::function<void(const HttpRequest& request, const HttpReply& reply)>;
    // Of a request for a web socket: the refusal, or nullopt for one that is taken.
    using Refusal = std::function<std::optional<HttpResponse>(const HttpRequest& request)>;
    using Take = std::function<void(std::unique_ptr<QWebSocket> socket)>;

    explicit HttpServer(Handler handler) : HttpServer(std::move(handler), {}, {}) {}
    HttpServer(Handler handler, Refusal refusal, Take take);

    // From now on connections are encrypted. To be called before listen().
    void setTls(const QSslConfiguration& tls);
    // Port 0 takes a free one. On failure gives the reason, otherwise an empty text.
    QString listen(const QHostAddress& address, quint16 port);
    [[nodiscard]] quint16 port() const { return listener_->serverPort(); }
    [[nodiscard]] QHostAddress address() const { return listener_->serverAddress(); }

 private:
    void takeConnections();
    bool dropIdle();
    void takeWebSocket(HttpConnection* connection, const HttpRequest& request);

    Handler handler_;
    Refusal refusal_;
    Take take_;
    std::unique_ptr<QTcpServer> listener_;
    QWebSocketServer webSockets_;
    int connections_ = 0;
};

}  // namespace zelvor
