#include "http/http_connection.h"

#include <QSslSocket>
#include <boost/beast/http/parser.hpp>
#include <boost/beast/http/string_body.hpp>

#include "system/socket_calls.h"

namespace zelvor {

namespace {

namespace beast = boost::beast::http;

constexpr int kDraining = 2000;  // milliseconds

QByteArray bytesOf(boost::beast::string_view text) {
    return {text.data(), static_cast<qsizetype>(text.size())};
}

}  // namespace

class HttpConnection::Parser {
 public:
    Parser() {
        parser_.header_limit(kLargestHead);
        parser_.body_limit(kLargestBody);
        parser_.eager(true);
    }
    // The number of bytes used; the error, if any, is in error().
    qsizetype put(const QByteArray& bytes) {
        error_ = {};
        const size_t used =
            parser_.put(boost::asio::buffer(bytes.constData(), static_cast<size_t>(bytes.size())), error_);
        if (error_ == beast::error::need_more) error_ = {};
        return static_cast<qsizetype>(used);
    }
    [[nodiscard]] const boost::beast::error_code& error() const { return error_; }
    [[nodiscard]] bool hasHead() const { return parser_.is_header_done(); }
    [[nodiscard]] bool isDone() const { return parser_.is_done(); }
    [[nodiscard]] const beast::request<beast::string_body>& message() const { return parser_.get(); }

 private:
    beast::request_parser<beast::string_body> parser_;
    boost::beast::error_code error_;
};

HttpConnection::HttpConnection(QTcpSocket* socket) : socket_(socket), parser_(std::make_unique<Parser>()) {
    socket_->setParent(this);
    // What a client sends beyond a request waits with the system, not here.
    socket_->setReadBufferSize(kLargestHead + static_cast<qint64>(kLargestBody));
    connect(socket_, &QTcpSocket::readyRead, this, &HttpConnection::read);
    connect(socket_, &QTcpSocket::bytesWritten, this, [this] {
        if (!handled_ && socket_->bytesToWrite() == 0) afterAnswer();
    });
    connect(socket_, &QTcpSocket::disconnected, this, &HttpConnection::closed);
    deadline_.setSingleShot(true);
    connect(&deadline_, &QTimer::timeout, this, [this] {
        if (begun_ && !handled_ && !closing_) return refuse(408, "The request took too long\n");
        socket_->abort();
        Q_EMIT closed();
    });
    deadline_.start(kLongestRequest);
}

HttpConnection::~HttpConnection() = default;

void HttpConnection::read() {
    if (closing_) {
        socket_->skip(socket_->bytesAvailable());
        return;
    }
    if (handled_ || socket_->bytesAvailable() == 0) return;
    if (!begun_) deadline_.start(kLongestRequest);
    begun_ = true;
    if (parser_->hasHead() || readHead()) readBody();
}

// The head is left in the socket until it is whole: a web socket's is read by others.
bool HttpConnection::readHead() {
    const QByteArray seen = socket_->peek(kLargestHead + 1);
    const qsizetype end = seen.indexOf("\r\n\r\n");
    if (end < 0) {
        if (seen.size() > kLargestHead) refuse(431, "The head of the request is too large\n");
        return false;
    }
    const qsizetype size = end + 4;
    parser_->put(seen.left(size));
    QStringList path;
    if (parser_->error() == beast::error::body_limit) {
        refuse(413, "The body is too large\n");
    } else if (parser_->error() || !parser_->hasHead() || !readTarget(bytesOf(parser_->message().target()), path)) {
        refuse(400, "No HTTP request\n");
    } else if (const HttpRequest wanted = request(); wanted.wantsWebSocket()) {
        handled_ = true;
        deadline_.stop();
        keepAlive_ = false;
        Q_EMIT webSocketWanted(wanted);
    } else {
        socket_->skip(size);
        if (!wanted.header("Expect").isEmpty() && !parser_->isDone()) socket_->write("HTTP/1.1 100 Continue\r\n\r\n");
        return true;
    }
    return false;
}

void HttpConnection::readBody() {
    while (!parser_->isDone() && socket_->bytesAvailable() > 0) {
        const QByteArray seen = socket_->peek(socket_->bytesAvailable());
        const qsizetype used = parser_->put(seen);
        socket_->skip(used);
        if (parser_->error() == beast::error::body_limit) return refuse(413, "The body is too large\n");
        if (parser_->error()) return refuse(400, "No HTTP request\n");
        if (used == 0) return;
    }
    if (!parser_->isDone()) return;
    handled_ = true;
    deadline_.stop();
    keepAlive_ = parser_->message().keep_alive();
    Q_EMIT requested(request());
}

HttpRequest HttpConnection::request() const {
    const auto& message = parser_->message();
    HttpRequest request;
    request.method = bytesOf(message.method_string());
    readTarget(bytesOf(message.target()), request.path);
    for (const auto& field : message)
        request.headers.emplace_back(bytesOf(field.name_string()), bytesOf(field.value()));
    request.body = QByteArray::fromStdString(message.body());
    request.peer = socket_->peerAddress();
    request.local = socket_->localAddress();
    request.localPort = socket_->localPort();
    request.isEncrypted = qobject_cast<QSslSocket*>(socket_) != nullptr;
    return request;
}

void HttpConnection::respond(const HttpResponse& response) {
    if (!handled_ || closing_) return;
    QByteArray bytes = response.bytes(keepAlive_);
    // The client would take a body for the next answer.
    if (parser_->hasHead() && parser_->message().method() == beast::verb::head) bytes.chop(response.body.size());
    handled_ = false;
    begun_ = false;
    parser_ = std::make_unique<Parser>();
    closing_ = !keepAlive_;
    deadline_.start(kLongestAnswer);
    socket_->write(bytes);
}

void HttpConnection::refuse(int status, const QByteArray& words) {
    handled_ = true;
    keepAlive_ = false;
    respond({status, "text/plain; charset=utf-8", words});
}

void HttpConnection::afterAnswer() {
    if (closing_) {
        // A connection closed at once, with bytes of the client still unread, would take the answer with it.
        socket_->skip(socket_->bytesAvailable());
        const bool isPlain = qobject_cast<QSslSocket*>(socket_) == nullptr;
        if (!isPlain || !endSending(socket_->socketDescriptor())) socket_->disconnectFromHost();
        deadline_.start(kDraining);
        return;
    }
    if (!begun_) deadline_.start(kLongestIdle);
    QMetaObject::invokeMethod(this, &HttpConnection::read, Qt::QueuedConnection);
}

QTcpSocket* HttpConnection::release() {
    socket_->disconnect(this);
    socket_->setParent(nullptr);
    socket_->setReadBufferSize(0);
    return std::exchange(socket_, nullptr);
}

}  // namespace zelvor
