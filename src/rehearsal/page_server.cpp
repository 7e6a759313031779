#include "rehearsal/page_server.h"

#include <QFile>
#include <QMimeDatabase>
#include <QRegularExpression>
#include <QUrl>
#include <QWebSocket>

using namespace Qt::StringLiterals;

namespace zelvor::rehearsal {

namespace {

constexpr auto kPagePolicy =
    "default-src 'none'; script-src 'self'; style-src 'self'; img-src 'self'; frame-src 'self'; connect-src 'self'; "
    "base-uri 'none'; form-action 'none'; frame-ancestors 'none'";
constexpr auto kTemplatePolicy = "sandbox allow-scripts";

QByteArray typeOf(const QString& name) {
    return QMimeDatabase().mimeTypeForFile(name, QMimeDatabase::MatchExtension).name().toLatin1();
}

HttpResponse refusal(int status, const QByteArray& words) {
    return {status, "text/plain", words};
}

HttpResponse pageFile(const QString& name) {
    QFile file(u":/page/"_s + name);
    if (name.contains(u'/') || !file.open(QIODevice::ReadOnly)) return refusal(404, "Not found\n");
    return {200, typeOf(name) + "; charset=utf-8", file.readAll(), {{"Content-Security-Policy", kPagePolicy}}};
}

HttpResponse templateFile(const TemplateFolder& folder, const QString& name) {
    const std::optional<QByteArray> bytes = folder.read(name);
    if (!bytes) return refusal(404, "Not found\n");
    const QByteArray type = typeOf(name);
    // A template has no origin: its own fonts and data are only readable to it when anyone may read them.
    return {200,
            type,
            type == "text/html" ? withShim(*bytes) : *bytes,
            {{"Content-Security-Policy", kTemplatePolicy}, {"Access-Control-Allow-Origin", "*"}}};
}

// Only our own page may look on: not a template, not another site that is open in the same browser.
std::optional<HttpResponse> viewerRefusal(const HttpRequest& request) {
    if (request.pathText() != u"/state") return refusal(404, "Not found\n");
    const QUrl origin(QString::fromLatin1(request.header("Origin")));
    const QUrl self(u"http://"_s + QString::fromLatin1(request.header("Host")));
    constexpr int kUsualPort = 80;
    if (origin.host() == self.host() && origin.port(kUsualPort) == self.port(kUsualPort)) return std::nullopt;
    return refusal(403, "Not from here\n");
}

}  // namespace

PageServer::PageServer(const TemplateFolder& folder, ViewerFeed& feed)
    : folder_(folder),
      server_([this](const HttpRequest& request, const HttpReply& reply) { reply.send(answer(request)); },
              viewerRefusal, [&feed](std::unique_ptr<QWebSocket> socket) { feed.join(std::move(socket)); }) {}

HttpResponse PageServer::answer(const HttpRequest& request) const {
    const QString path = request.pathText();
    if (request.method != "GET") return refusal(405, "Only GET\n");
    if (path == u"/") return pageFile(u"index.html"_s);
    if (path.startsWith(u"/page/")) return pageFile(path.mid(6));
    if (path.startsWith(u"/templates/")) return templateFile(folder_, path.mid(11));
    return refusal(404, "Not found\n");
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
