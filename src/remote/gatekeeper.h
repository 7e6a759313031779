#pragma once

#include <QElapsedTimer>
#include <QHash>
#include <optional>

#include "http/http_message.h"

namespace zelvor {

// Who may come in by HTTP: whoever reaches a loopback address, or has the token; never a page of another origin.
// Wrong tokens are counted by the address they come from, and an address with too many is kept waiting.
class Gatekeeper {
 public:
    static constexpr int kWrongAllowed = 5;          // then the address waits
    static constexpr qint64 kWaitAfterWrong = 1000;  // milliseconds, doubled with each further one
    static constexpr qint64 kLongestWait = 60'000;

    // token: empty where none is asked for. hostName: as it was named on the command line.
    Gatekeeper(QByteArray token, QString hostName) : token_(std::move(token)), hostName_(std::move(hostName)) {}

    // The refusal of a request, nullopt for one that may pass.
    std::optional<HttpResponse> refusal(const HttpRequest& request);
    // The same but for the token: what a page needs to ask for it.
    [[nodiscard]] std::optional<HttpResponse> strangerRefusal(const HttpRequest& request) const;
    // The page's form with the token, "token=...": a cookie and the way back to the page, or the refusal.
    HttpResponse logIn(const HttpRequest& request);
    [[nodiscard]] bool isKnown(const HttpRequest& request) const;

 private:
    struct Wrong {
        int count = 0;
        qint64 waitsUntil = 0;
    };
    [[nodiscard]] bool isToken(const QByteArray& given) const;
    [[nodiscard]] std::optional<HttpResponse> waitRefusal(const QHostAddress& peer) const;
    void countWrong(const QHostAddress& peer);
    [[nodiscard]] qint64 now() const { return clock_.elapsed(); }

    static QElapsedTimer started();

    QByteArray token_;
    QString hostName_;
    QElapsedTimer clock_ = started();
    QHash<QHostAddress, Wrong> wrong_;
    QList<QByteArray> sessions_;  // cookies given out, the newest last
};

}  // namespace zelvor
