#include "http/http_message.h"

#include <QPointer>
#include <boost/beast/http/status.hpp>
#include <string_view>

#include "http/http_connection.h"

namespace zelvor {

QByteArray HttpRequest::header(QByteArrayView name) const {
    for (const auto& [key, value] : headers) {
        if (key.compare(name, Qt::CaseInsensitive) == 0) return value;
    }
    return {};
}

bool HttpRequest::wantsWebSocket() const {
    return method == "GET" && header("Upgrade").compare("websocket", Qt::CaseInsensitive) == 0;
}

bool readTarget(const QByteArray& target, QStringList& path) {
    const QByteArray whole = target.left(target.indexOf('?') < 0 ? target.size() : target.indexOf('?'));
    if (!whole.startsWith('/')) return false;
    path.clear();
    for (const QByteArray& piece : whole.mid(1).split('/')) {
        path += QString::fromUtf8(QByteArray::fromPercentEncoding(piece));
    }
    if (path.size() == 1 && path.constFirst().isEmpty()) path.clear();
    return true;
}

QByteArray HttpResponse::bytes(bool keepAlive) const {
    const auto reason =
        boost::beast::http::obsolete_reason(boost::beast::http::int_to_status(static_cast<unsigned>(status)));
    QByteArray head = "HTTP/1.1 " + QByteArray::number(status) + ' ' +
                      QByteArray(reason.data(), static_cast<qsizetype>(reason.size())) + "\r\nContent-Type: " + type +
                      "\r\nContent-Length: " + QByteArray::number(body.size()) +
                      "\r\nConnection: " + (keepAlive ? "keep-alive" : "close") + "\r\nCache-Control: no-store\r\n";
    for (const auto& [name, value] : headers) head += name + ": " + value + "\r\n";
    return head + "\r\n" + body;
}

struct HttpReply::Open {
    explicit Open(HttpConnection& to) : connection(&to) {}
    Open(const Open&) = delete;
    Open& operator=(const Open&) = delete;
    ~Open() { send({500, "text/plain; charset=utf-8", "No answer\n"}); }

    void send(const HttpResponse& response) {
        if (connection) connection->respond(response);
        connection.clear();
    }
    QPointer<HttpConnection> connection;
};

HttpReply::HttpReply(HttpConnection& connection) : open_(std::make_shared<Open>(connection)) {}

void HttpReply::send(const HttpResponse& response) const {
    open_->send(response);
}

}  // namespace zelvor
