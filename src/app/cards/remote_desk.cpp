#include "app_cards/remote_desk.h"

#include <QFile>
#include <QSslKey>

#include "base/translate.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

// With another one's key every connection would fail, and nobody would know why. A private key holds its public one as
// the certificate does, at the end; only an EC key may have been written without, and is taken at its word.
bool isKeyOf(const QSslCertificate& certificate, const QSslKey& key) {
    constexpr qsizetype kTelling = 32;  // bytes; the shortest keys have more
    const QSslKey publicKey = certificate.publicKey();
    if (key.algorithm() != publicKey.algorithm() || key.length() != publicKey.length()) return false;
    const QByteArray held = key.toDer();
    const QByteArray wanted = publicKey.toDer();
    return held.size() < wanted.size() || held.contains(wanted.last(kTelling));
}

// Empty, with the reason, for a file that cannot be read.
QByteArray bytesIn(const QString& path, QString& fault) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) fault = path + u": "_s + file.errorString();
    return file.isOpen() ? file.readAll() : QByteArray();
}

// nullopt, with the reason, when one of the files is none of the kind.
std::optional<QSslConfiguration> readTls(const RemoteOptions::Control& options, QString& fault) {
    const QByteArray keyBytes = bytesIn(options.key, fault);
    const QList<QSslCertificate> chain = QSslCertificate::fromData(bytesIn(options.certificate, fault));
    if (!fault.isEmpty()) return std::nullopt;
    QSslKey key(keyBytes, QSsl::Rsa);
    if (key.isNull()) key = QSslKey(keyBytes, QSsl::Ec);
    if (key.isNull()) {
        fault = translate("cards", "%1: no private key of RSA or EC in PEM, or one with a password").arg(options.key);
    } else if (chain.isEmpty()) {
        fault = translate("cards", "%1: no certificate in PEM").arg(options.certificate);
    } else if (!isKeyOf(chain.constFirst(), key)) {
        fault = translate("cards", "%1: not the key of the certificate %2").arg(options.key, options.certificate);
    }
    if (!fault.isEmpty()) return std::nullopt;
    QSslConfiguration tls = QSslConfiguration::defaultConfiguration();
    tls.setLocalCertificateChain(chain);
    tls.setPrivateKey(key);
    tls.setPeerVerifyMode(QSslSocket::VerifyNone);  // clients show the token
    return tls;
}

}  // namespace

QStringList RemoteDesk::listen(const RemoteOptions& options) {
    QStringList faults;
    if (options.control) {
        const QString fault = listenForControl(*options.control);
        if (!fault.isEmpty()) faults += u"--control "_s + options.control->listen.text() + u": "_s + fault;
    }
    if (options.osc) {
        osc_ = std::make_unique<OscDoor>(console_, watch_, options.osc->allowed);
        const QString fault = osc_->listen(options.osc->address, options.osc->listen.port);
        if (!fault.isEmpty()) {
            osc_.reset();
            faults += u"--osc "_s + options.osc->listen.text() + u": "_s + fault;
        }
    }
    return faults;
}

QString RemoteDesk::listenForControl(const RemoteOptions::Control& options) {
    ControlServer::Settings settings{options.listen.host, options.address, options.listen.port, options.token, {}};
    if (!options.certificate.isEmpty()) {
        QString fault;
        settings.tls = readTls(options, fault);
        if (!settings.tls) return fault;
    }
    control_ = std::make_unique<ControlServer>(console_, watch_, settings);
    QString fault = control_->listen();
    if (!fault.isEmpty()) control_.reset();
    return fault;
}

}  // namespace zelvor
