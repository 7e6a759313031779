#pragma once

#include <QByteArray>
#include <QHostAddress>
#include <QStringList>
#include <memory>
#include <utility>
#include <vector>

namespace zelvor {

// A request as it came in, whole.
struct HttpRequest {
    QByteArray method;  // "GET"
    QStringList path;   // its pieces between slashes, decoded; empty for "/"
    std::vector<std::pair<QByteArray, QByteArray>> headers;
    QByteArray body;
    QHostAddress peer;
    QHostAddress local;  // the address it was sent to
    quint16 localPort = 0;
    bool isEncrypted = false;

    // The value of the first header of that name, in any case; empty when there is none.
    [[nodiscard]] QByteArray header(QByteArrayView name) const;
    [[nodiscard]] bool wantsWebSocket() const;
    // "/api/state"
    [[nodiscard]] QString pathText() const { return QLatin1Char('/') + path.join(QLatin1Char('/')); }
};

// The pieces of a request's target, "/a/b%20c?d"; false when it is no path.
bool readTarget(const QByteArray& target, QStringList& path);

struct HttpResponse {
    int status = 200;
    QByteArray type = "text/plain; charset=utf-8";
    QByteArray body = {};
    std::vector<std::pair<QByteArray, QByteArray>> headers = {};  // besides type, length and connection

    // As it goes over the wire.
    [[nodiscard]] QByteArray bytes(bool keepAlive) const;
};

class HttpConnection;

// Where the answer to a request is given, once: now or later. A second answer, and one to a client that has gone, is
// dropped; a request that nobody answers is answered with 500.
class HttpReply {
 public:
    explicit HttpReply(HttpConnection& connection);
    void send(const HttpResponse& response) const;

 private:
    struct Open;
    std::shared_ptr<Open> open_;
};

}  // namespace zelvor
