#include "http/http_server.h"

#include <QSslSocket>
#include <QWebSocket>

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

// Takes connections as encrypted ones.
class TlsListener : public QTcpServer {
 public:
    explicit TlsListener(const QSslConfiguration& tls) : tls_(tls) {}

 protected:
    void incomingConnection(qintptr descriptor) override {
        auto* socket = new QSslSocket(this);
        socket->setSocketDescriptor(descriptor);
        socket->setSslConfiguration(tls_);
        socket->startServerEncryption();
        addPendingConnection(socket);
    }

 private:
    QSslConfiguration tls_;
};

}  // namespace

HttpServer::HttpServer(Handler handler, Refusal refusal, Take take)
    : handler_(std::move(handler)),
      refusal_(std::move(refusal)),
      take_(std::move(take)),
      listener_(std::make_unique<QTcpServer>()),
      webSockets_(u"Zelvor"_s, QWebSocketServer::NonSecureMode) {
    connect(&webSockets_, &QWebSocketServer::newConnection, this, [this] {
        while (QWebSocket* socket = webSockets_.nextPendingConnection()) {
            socket->setParent(nullptr);
            take_(std::unique_ptr<QWebSocket>(socket));
        }
    });
}

void HttpServer::setTls(const QSslConfiguration& tls) {
    listener_ = std::make_unique<TlsListener>(tls);
}

QString HttpServer::listen(const QHostAddress& address, quint16 port) {
    connect(listener_.get(), &QTcpServer::newConnection, this, &HttpServer::takeConnections);
    return listener_->listen(address, port) ? QString() : listener_->errorString();
}

void HttpServer::takeConnections() {
    while (QTcpSocket* socket = listener_->nextPendingConnection()) {
        if (connections_ >= kMostConnections && !dropIdle()) {
            socket->write(HttpResponse{503, "text/plain; charset=utf-8", "Too many connections\n"}.bytes(false));
            connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
            socket->disconnectFromHost();
            continue;
        }
        ++connections_;
        socket->setSocketOption(QAbstractSocket::LowDelayOption, 1);  // events are small and follow one another
        auto* connection = new HttpConnection(socket);
        connection->setParent(this);
        connect(connection, &QObject::destroyed, this, [this] { --connections_; });
        connect(connection, &HttpConnection::closed, connection, &QObject::deleteLater);
        connect(connection, &HttpConnection::requested, this,
                [this, connection](const HttpRequest& request) { handler_(request, HttpReply(*connection)); });
        connect(connection, &HttpConnection::webSocketWanted, this,
                [this, connection](const HttpRequest& request) { takeWebSocket(connection, request); });
    }
}

// Whoever has come and asks for nothing makes room.
bool HttpServer::dropIdle() {
    for (auto* connection : findChildren<HttpConnection*>(Qt::FindDirectChildrenOnly)) {
        if (!connection->isIdle()) continue;
        delete connection;
        return true;
    }
    return false;
}

void HttpServer::takeWebSocket(HttpConnection* connection, const HttpRequest& request) {
    const HttpResponse none{404, "text/plain; charset=utf-8", "No web socket here\n"};
    if (const auto refused = refusal_ ? refusal_(request) : none) return connection->respond(*refused);
    QTcpSocket* socket = connection->release();
    // Whoever takes the web socket owns that, not what is below it.
    socket->setParent(this);
    connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
    connection->deleteLater();
    webSockets_.handleConnection(socket);
}

}  // namespace zelvor
