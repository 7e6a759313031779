#include "remote/control_server.h"

#include <QWebSocket>

#include "remote/api_routes.h"
#include "remote/page_file.h"

using namespace Qt::StringLiterals;

namespace zelvor {

ControlServer::ControlServer(RemoteConsole& console, StateWatch& watch, const Settings& settings)
    : console_(console),
      settings_(settings),
      gatekeeper_(settings.token, settings.hostName),
      view_(console),
      feed_(console, watch),
      server_([this](const HttpRequest& request, const HttpReply& reply) { answer(request, reply); },
              [this](const HttpRequest& request) { return socketRefusal(request); },
              [this](std::unique_ptr<QWebSocket> socket) { feed_.join(std::move(socket)); }) {}

QString ControlServer::listen() {
    if (settings_.tls) server_.setTls(*settings_.tls);
    return server_.listen(settings_.address, settings_.port);
}

void ControlServer::answer(const HttpRequest& request, const HttpReply& reply) {
    const QString first = request.path.value(0);
    const bool isGet = request.method == "GET";
    if (first == u"api") {
        if (const auto refused = gatekeeper_.refusal(request)) return reply.send(*refused);
        if (isGet && request.pathText() == u"/api/openapi.json") return reply.send(pageFile(u"openapi.json"_s));
        return answerApi(console_, view_, request, [reply](const HttpResponse& response) { reply.send(response); });
    }
    if (request.method == "POST" && request.pathText() == u"/login") return reply.send(gatekeeper_.logIn(request));
    if (const auto refused = gatekeeper_.strangerRefusal(request)) return reply.send(*refused);
    if (!isGet) return reply.send({405, "text/plain; charset=utf-8", "Only GET\n", {{"Allow", "GET"}}});
    if (request.path.isEmpty()) {
        const bool isKnown = gatekeeper_.isKnown(request);
        return reply.send(pageFile(isKnown ? u"index.html"_s : u"login.html"_s));
    }
    if (first == u"page" && request.path.size() == 2) return reply.send(pageFile(request.path[1]));
    reply.send({404, "text/plain; charset=utf-8", "Not found\n"});
}

std::optional<HttpResponse> ControlServer::socketRefusal(const HttpRequest& request) {
    if (auto refused = gatekeeper_.refusal(request)) return refused;
    if (request.pathText() != u"/api/events") return jsonResponse(wrongDeed(404, u"no web socket here"_s));
    if (feed_.isFull()) return jsonResponse(wrongDeed(503, u"too many look on"_s));
    return std::nullopt;
}

}  // namespace zelvor
