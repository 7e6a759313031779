#pragma once

#include <QJsonObject>
#include <QStringList>
#include <functional>
#include <span>

#include "http/http_message.h"
#include "remote/remote_console.h"
#include "remote/state_view.h"

namespace zelvor {

// A call of the interface: what its path and its body hold, and where it is answered.
struct ApiCall {
    RemoteConsole& console;
    const StateView& view;
    QStringList values;  // of the braces in the route's path, in order
    QJsonObject body;
    RemoteConsole::Request request;  // whose `done` answers the call
};

// A way in: what docs/control.openapi.json describes, the tests hold the two together.
struct ApiRoute {
    QByteArrayView method;
    QStringView path;  // "/api/keys/{number}"
    void (*handler)(const ApiCall& call);
};
std::span<const ApiRoute> apiRoutes();

// Answers a request to the interface once, at once or later.
using SendResponse = std::function<void(const HttpResponse& response)>;
void answerApi(RemoteConsole& console, const StateView& view, const HttpRequest& request, const SendResponse& send);

// As it is sent.
HttpResponse jsonResponse(const DeedResult& result);

}  // namespace zelvor
