#pragma once

#include <QTcpSocket>
#include <QTimer>
#include <functional>
#include <memory>

#include "http/http_message.h"

namespace zelvor {

// One client's connection: reads a request after the other within limits of size and time, and writes the answers. A
// request that is too large, too slow or none is refused and ends the connection.
class HttpConnection : public QObject {
    Q_OBJECT

 public:
    static constexpr qsizetype kLargestHead = qsizetype{16} * 1024;  // bytes
    static constexpr quint64 kLargestBody = quint64{64} * 1024;
    // Milliseconds: for a request from its first byte, for the client to take the answer, and between two requests.
    static constexpr int kLongestRequest = 10'000;
    static constexpr int kLongestAnswer = 20'000;
    static constexpr int kLongestIdle = 60'000;

    // Takes the socket over.
    explicit HttpConnection(QTcpSocket* socket);
    HttpConnection(const HttpConnection&) = delete;
    HttpConnection& operator=(const HttpConnection&) = delete;
    ~HttpConnection() override;

    // Answers the request that was told last.
    void respond(const HttpResponse& response);
    // Whether it waits for a request of which nothing has come yet.
    [[nodiscard]] bool isIdle() const { return socket_ != nullptr && !begun_ && !handled_ && !closing_; }
    // Gives the socket away, nothing of the web socket's request being read from it yet.
    QTcpSocket* release();

 Q_SIGNALS:
    void requested(const zelvor::HttpRequest& request);
    // A web socket is wanted: to be answered with release() or respond().
    void webSocketWanted(const zelvor::HttpRequest& request);
    void closed();

 private:
    class Parser;

    void read();
    bool readHead();
    void readBody();
    [[nodiscard]] HttpRequest request() const;
    void refuse(int status, const QByteArray& words);
    void afterAnswer();

    QTcpSocket* socket_;
    std::unique_ptr<Parser> parser_;
    QTimer deadline_;
    bool begun_ = false;    // some of a request is here
    bool handled_ = false;  // a request waits for its answer
    bool closing_ = false;  // what still comes is thrown away
    bool keepAlive_ = true;
};

}  // namespace zelvor
