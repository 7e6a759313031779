#include "live_sources/tcp_source.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

// What a LiveStats server is asked for: all kinds of message, and after connecting all actions so far.
constexpr QByteArrayView kParameters =
    R"({"type":"parameters","types":"se,st,ac,mi,te,sc,box,pbp","playbyplayOnConnect":1})"
    "\r\n";

}  // namespace

TcpSource::TcpSource(SourceKind kind, QString host, quint16 port, Refusals& refusals, int silence)
    : LiveSource(kind), host_(std::move(host)), port_(port), lines_(refusals) {
    again_.setSingleShot(true);
    again_.setInterval(kPauseBeforeAgain);
    connect(&again_, &QTimer::timeout, this, &TcpSource::start);
    silence_.setSingleShot(true);
    silence_.setInterval(silence);
    connect(&silence_, &QTimer::timeout, this, [this] { reconnect(u"silent"_s); });
    connect(&socket_, &QTcpSocket::connected, this, &TcpSource::greet);
    connect(&socket_, &QTcpSocket::readyRead, this, &TcpSource::read);
    connect(&socket_, &QTcpSocket::errorOccurred, this, [this] { reconnect(socket_.errorString()); });
    // More than this unread, and the sender is let wait.
    constexpr qint64 kReadBuffer = qint64{1024} * 1024;
    socket_.setReadBufferSize(kReadBuffer);
}

void TcpSource::start() {
    silence_.start();
    socket_.connectToHost(host_, port_);
}

QString TcpSource::name() const {
    return (kind() == SourceKind::LiveStats ? u"LiveStats "_s : u"Daktronics "_s) + host_ + u':' +
           QString::number(port_);
}

void TcpSource::greet() {
    if (kind() == SourceKind::LiveStats) socket_.write(kParameters.data(), kParameters.size());
    Q_EMIT connected();
}

void TcpSource::read() {
    silence_.start();
    const QByteArray piece = socket_.readAll();
    if (kind() == SourceKind::Daktronics) {
        Q_EMIT message(piece);
    } else {
        lines_.add(piece, [this](const QByteArray& line) { Q_EMIT message(line); });
    }
}

void TcpSource::reconnect(const QString& why) {
    if (again_.isActive()) return;
    again_.start();
    silence_.stop();
    lines_.drop();
    socket_.abort();
    Q_EMIT lost(why);
}

}  // namespace zelvor
