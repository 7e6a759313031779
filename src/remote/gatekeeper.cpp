#include "remote/gatekeeper.h"

#include <QRandomGenerator>
#include <QUrl>
#include <QUrlQuery>
#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

constexpr auto kCookie = "zelvor";
constexpr qsizetype kMostSessions = 100;
constexpr qsizetype kMostAddresses = 10'000;

HttpResponse refused(int status, const QByteArray& words) {
    return {status, "application/json", R"({"error":")" + words + "\"}\n"};
}

QByteArray cookieOf(const HttpRequest& request) {
    for (const QByteArray& cookie : request.header("Cookie").split(';')) {
        const qsizetype equals = cookie.indexOf('=');
        if (equals > 0 && cookie.left(equals).trimmed() == kCookie) return cookie.mid(equals + 1).trimmed();
    }
    return {};
}

QByteArray madeUp() {
    std::array<quint32, 8> words{};
    QRandomGenerator::system()->fillRange(words.data(), static_cast<qsizetype>(words.size()));
    return QByteArray(reinterpret_cast<const char*>(words.data()), sizeof(words)).toHex();
}

}  // namespace

QElapsedTimer Gatekeeper::started() {
    QElapsedTimer timer;
    timer.start();
    return timer;
}

// Each byte is looked at, whether one before differs or not: the time tells nothing.
bool Gatekeeper::isToken(const QByteArray& given) const {
    int different = given.size() == token_.size() ? 0 : 1;
    for (qsizetype i = 0; i < given.size(); ++i) different |= given[i] ^ token_[i % token_.size()];
    return different == 0;
}

std::optional<HttpResponse> Gatekeeper::strangerRefusal(const HttpRequest& request) const {
    // A name of another site that was made to point here is no name of ours.
    const QUrl host(u"http://"_s + QString::fromLatin1(request.header("Host")), QUrl::StrictMode);
    const QHostAddress address(host.host());
    bool isIpV4 = false;
    const quint32 ipV4 = request.local.toIPv4Address(&isIpV4);
    const bool isLocal = address == request.local || (isIpV4 && address == QHostAddress(ipV4));
    const bool isLoopbackName = request.local.isLoopback() && host.host() == u"localhost";
    const int usualPort = request.isEncrypted ? 443 : 80;
    const bool isHost = !host.host().isEmpty() && (isLocal || isLoopbackName || host.host() == hostName_.toLower());
    if (!isHost || host.port(usualPort) != request.localPort)
        return refused(421, "This is not the host that was asked for");
    const QByteArray origin = request.header("Origin");
    const QByteArray own = (request.isEncrypted ? "https://" : "http://") + request.header("Host");
    if (!origin.isEmpty() && origin.compare(own, Qt::CaseInsensitive) != 0)
        return refused(403, "Pages of other origins may not do this");
    return std::nullopt;
}

bool Gatekeeper::isKnown(const HttpRequest& request) const {
    return token_.isEmpty() || sessions_.contains(cookieOf(request));
}

std::optional<HttpResponse> Gatekeeper::refusal(const HttpRequest& request) {
    if (auto stranger = strangerRefusal(request)) return stranger;
    if (isKnown(request)) return std::nullopt;
    if (auto waits = waitRefusal(request.peer)) return waits;
    const QByteArray given = request.header("Authorization");
    constexpr QByteArrayView kBearer = "Bearer ";
    if (given.isEmpty()) {
        HttpResponse response = refused(401, "The token is missing");
        response.headers.emplace_back("WWW-Authenticate", "Bearer");
        return response;
    }
    if (given.startsWith(kBearer) && isToken(given.mid(kBearer.size()).trimmed())) {
        wrong_.remove(request.peer);
        return std::nullopt;
    }
    countWrong(request.peer);
    return refused(401, "The token is wrong");
}

HttpResponse Gatekeeper::logIn(const HttpRequest& request) {
    if (auto stranger = strangerRefusal(request)) return *stranger;
    // Also where no token is asked for: there is none to compare with.
    if (isKnown(request)) return {303, "text/plain; charset=utf-8", "Welcome\n", {{"Location", "/"}}};
    if (auto waits = waitRefusal(request.peer)) return *waits;
    QByteArray form = request.body;
    const QUrlQuery fields(QString::fromUtf8(form.replace('+', ' ')));
    if (!isToken(fields.queryItemValue(u"token"_s, QUrl::FullyDecoded).trimmed().toUtf8())) {
        countWrong(request.peer);
        return {303, "text/plain; charset=utf-8", "Wrong\n", {{"Location", "/?wrong"}}};
    }
    wrong_.remove(request.peer);
    sessions_ += madeUp();
    if (sessions_.size() > kMostSessions) sessions_.removeFirst();
    const QByteArray cookie = QByteArray(kCookie) + '=' + sessions_.constLast() +
                              "; HttpOnly; SameSite=Strict; Path=/" + (request.isEncrypted ? "; Secure" : "");
    return {303, "text/plain; charset=utf-8", "Welcome\n", {{"Location", "/"}, {"Set-Cookie", cookie}}};
}

std::optional<HttpResponse> Gatekeeper::waitRefusal(const QHostAddress& peer) const {
    const qint64 left = wrong_.value(peer).waitsUntil - now();
    if (left <= 0) return std::nullopt;
    HttpResponse response = refused(429, "Too many wrong tokens");
    response.headers.emplace_back("Retry-After", QByteArray::number(left / 1000 + 1));
    return response;
}

void Gatekeeper::countWrong(const QHostAddress& peer) {
    if (wrong_.size() >= kMostAddresses) wrong_.clear();
    Wrong& wrong = wrong_[peer];
    ++wrong.count;
    if (wrong.count < kWrongAllowed) return;
    constexpr int kMostDoublings = 6;
    const qint64 wait = kWaitAfterWrong << std::min(wrong.count - kWrongAllowed, kMostDoublings);
    wrong.waitsUntil = now() + std::min(wait, kLongestWait);
}

}  // namespace zelvor
