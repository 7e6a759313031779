#include "app_cards/remote_options.h"

#include <QFile>
#include <QHostInfo>

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

constexpr qsizetype kShortestToken = 16;

// HOST:PORT, port 0 for any free one.
std::optional<HostPort> readListening(const QString& text) {
    const qsizetype colon = text.lastIndexOf(u':');
    QString host = text.left(colon);
    if (host.startsWith(u'[') && host.endsWith(u']')) host = host.mid(1, host.size() - 2);
    bool isNumber = false;
    const ushort port = text.mid(colon + 1).toUShort(&isNumber);
    if (colon < 1 || host.isEmpty() || !isNumber) return std::nullopt;
    return HostPort{host, port};
}

QHostAddress addressOf(const QString& option, const QString& host) {
    const QHostAddress written(host);
    if (!written.isNull()) return written;
    if (host == u"localhost") return QHostAddress::LocalHost;
    const QHostInfo found = QHostInfo::fromName(host);
    if (found.addresses().isEmpty()) throw UsageError{option + u": no such host: "_s + host};
    return found.addresses().constFirst();
}

QByteArray tokenIn(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) throw UsageError{u"--control-token: "_s + path + u": "_s + file.errorString()};
    constexpr qint64 kLongest = 1000;
    QByteArray token = file.readLine(kLongest).trimmed();
    if (token.size() < kShortestToken) {
        throw UsageError{
            u"--control-token: the first line of %1 is to hold a token of %2 characters or more"_s.arg(path).arg(
                kShortestToken)};
    }
    return token;
}

std::optional<RemoteOptions::Control> readControl(const CommandLine& line) {
    const auto listen = line.read(u"--control", u"HOST:PORT"_s, readListening);
    const std::optional<QString> token = line.value(u"--control-token");
    const std::optional<QString> certificate = line.value(u"--control-cert");
    const std::optional<QString> key = line.value(u"--control-key");
    if (!listen) {
        if (token || certificate || key) throw UsageError{u"--control-token, -cert and -key belong to --control"_s};
        return std::nullopt;
    }
    if (certificate.has_value() != key.has_value())
        throw UsageError{u"--control-cert and --control-key belong together"_s};
    const QHostAddress address = addressOf(u"--control"_s, listen->host);
    if (!address.isLoopback() && !token)
        throw UsageError{u"--control on %1, which others reach, needs --control-token FILE"_s.arg(listen->host)};
    return RemoteOptions::Control{*listen, address, token ? tokenIn(*token) : QByteArray(),
                                  certificate.value_or(QString()), key.value_or(QString())};
}

std::optional<RemoteOptions::Osc> readOsc(const CommandLine& line) {
    const auto listen = line.read(u"--osc", u"HOST:PORT"_s, readListening);
    QList<QHostAddress> allowed;
    for (const QString& host : line.values(u"--osc-allow")) allowed += addressOf(u"--osc-allow"_s, host);
    if (!listen) {
        if (!allowed.isEmpty()) throw UsageError{u"--osc-allow belongs to --osc"_s};
        return std::nullopt;
    }
    const QHostAddress address = addressOf(u"--osc"_s, listen->host);
    if (!address.isLoopback() && allowed.isEmpty())
        throw UsageError{u"--osc on %1, which others reach, needs --osc-allow ADDRESS"_s.arg(listen->host)};
    return RemoteOptions::Osc{*listen, address, allowed};
}

}  // namespace

std::vector<CommandLine::Option> remoteOptionNames() {
    return {{u"--control"_s, true},     {u"--control-token"_s, true}, {u"--control-cert"_s, true},
            {u"--control-key"_s, true}, {u"--osc"_s, true},           {u"--osc-allow"_s, true}};
}

RemoteOptions readRemoteOptions(const CommandLine& line) {
    return {readControl(line), readOsc(line)};
}

}  // namespace zelvor
