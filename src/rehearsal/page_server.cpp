#include "rehearsal/page_server.h"

#include <QFile>
#include <QHttpServerRequest>
#include <QHttpServerResponder>
#include <QMimeDatabase>
#include <QRegularExpression>
#include <QTcpServer>

using namespace Qt::StringLiterals;

namespace zelvor::rehearsal {

namespace {

using StatusCode = QHttpServerResponder::StatusCode;

constexpr auto kPagePolicy =
    "default-src 'none'; script-src 'self'; style-src 'self'; img-src 'self'; frame-src 'self'; connect-src 'self'; "
    "base-uri 'none'; form-action 'none'; frame-ancestors 'none'";
constexpr auto kTemplatePolicy = "sandbox allow-scripts";

QByteArray typeOf(const QString& name) {
    return QMimeDatabase().mimeTypeForFile(name, QMimeDatabase::MatchExtension).name().toLatin1();
}

void sendPageFile(QHttpServerResponder responder, const QString& name) {
    QFile file(u":/page/"_s + name);
    if (name.contains(u'/') || !file.open(QIODevice::ReadOnly)) {
        responder.write("Not found\n", "text/plain", StatusCode::NotFound);
        return;
    }
    responder.write(file.readAll(), {{"Content-Type", typeOf(name) + "; charset=utf-8"},
                                     {"Content-Security-Policy", kPagePolicy},
                                     {"Cache-Control", "no-store"}});
}

void sendTemplateFile(QHttpServerResponder responder, const TemplateFolder& folder, const QString& name) {
    const std::optional<QByteArray> bytes = folder.read(name);
    if (!bytes) {
        responder.write("Not found\n", "text/plain", StatusCode::NotFound);
        return;
    }
    const QByteArray type = typeOf(name);
    // A template has no origin: its own fonts and data are only readable to it when anyone may read them.
    responder.write(type == "text/html" ? withShim(*bytes) : *bytes, {{"Content-Type", type},
                                                                      {"Content-Security-Policy", kTemplatePolicy},
                                                                      {"Access-Control-Allow-Origin", "*"},
                                                                      {"Cache-Control", "no-store"}});
}

}  // namespace

PageServer::PageServer(const TemplateFolder& folder, ViewerFeed& feed) : folder_(folder), feed_(feed) {
    connect(this, &QAbstractHttpServer::newWebSocketConnection, this, &PageServer::takeViewer);
}

QString PageServer::start(const QHostAddress& address, quint16 port) {
    auto listener = std::make_unique<QTcpServer>();
    if (!listener->listen(address, port)) {
        return listener->errorString();
    }
    bind(listener.release());
    return {};
}

quint16 PageServer::port() const {
    return servers().value(0)->serverPort();
}

bool PageServer::handleRequest(const QHttpServerRequest& request, QTcpSocket* socket) {
    const QString path = request.url().path(QUrl::FullyDecoded);
    if (request.method() != QHttpServerRequest::Method::Get) {
        makeResponder(request, socket).write("Only GET\n", "text/plain", StatusCode::MethodNotAllowed);
    } else if (path == "/"_L1) {
        sendPageFile(makeResponder(request, socket), u"index.html"_s);
    } else if (path.startsWith("/page/"_L1)) {
        sendPageFile(makeResponder(request, socket), path.mid(6));
    } else if (path.startsWith("/templates/"_L1)) {
        sendTemplateFile(makeResponder(request, socket), folder_, path.mid(11));
    } else {
        // The page's web socket: to say that it is ours is all there is to do, Qt answers it.
        return path == "/state"_L1 && request.value("Upgrade").compare("websocket", Qt::CaseInsensitive) == 0;
    }
    return true;
}

void PageServer::missingHandler(const QHttpServerRequest& request, QTcpSocket* socket) {
    makeResponder(request, socket).write("Not found\n", "text/plain", StatusCode::NotFound);
}

void PageServer::takeViewer() {
    while (auto socket = nextPendingWebSocketConnection()) {
        // Only our own page may look on: not a template, not another site that is open in the same browser.
        const QUrl origin(socket->origin());
        const QUrl self = socket->requestUrl();
        if (origin.host() != self.host() || origin.port(80) != self.port(80)) {
            socket.release()->deleteLater();  // Qt still works on it when this signal comes
            continue;
        }
        feed_.join(std::move(socket));
    }
}

QByteArray withShim(const QByteArray& html) {
    static const QRegularExpression doctype(
        u"^(\\xEF\\xBB\\xBF)?(\\s|<!--.*?-->)*(<!doctype[^>]*>)?"_s,
        QRegularExpression::CaseInsensitiveOption | QRegularExpression::DotMatchesEverythingOption);
    // Latin-1 maps bytes to characters one to one, so the length found is a length in bytes.
    const auto behind = doctype.match(QString::fromLatin1(html.left(4096))).capturedLength();
    return html.left(behind) + "<script src=\"/page/shim.js\"></script>" + html.mid(behind);
}

}  // namespace zelvor::rehearsal
