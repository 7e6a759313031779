#include "app_cards/remote_desk.h"

#include <QFile>
#include <QSslKey>

#include "base/translate.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

// nullopt, with the reason, when one of the files is none of the kind.
std::optional<QSslConfiguration> readTls(const RemoteOptions::Control& options, QString& fault) {
    QFile file(options.key);
    if (!file.open(QIODevice::ReadOnly)) {
        fault = options.key + u": "_s + file.errorString();
        return std::nullopt;
    }
    const QByteArray bytes = file.readAll();
    QSslKey key(bytes, QSsl::Rsa);
    if (key.isNull()) key = QSslKey(bytes, QSsl::Ec);
    const QList<QSslCertificate> chain = QSslCertificate::fromPath(options.certificate);
    if (key.isNull()) fault = translate("cards", "%1: no private key").arg(options.key);
    if (chain.isEmpty()) fault = translate("cards", "%1: no certificate").arg(options.certificate);
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
    const QString fault = control_->listen();
    if (!fault.isEmpty()) control_.reset();
    return fault;
}

}  // namespace zelvor
