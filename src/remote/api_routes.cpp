#include "remote/api_routes.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <optional>

#include "remote/api_handlers.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

constexpr std::array kRoutes{
    ApiRoute{"GET", u"/api/state", api::getState},
    ApiRoute{"GET", u"/api/question", api::getQuestion},
    ApiRoute{"POST", u"/api/question", api::answerQuestion},
    ApiRoute{"POST", u"/api/cards/{set}/{row}/fire", api::fireCard},
    ApiRoute{"POST", u"/api/keys/{number}", api::pressKey},
    ApiRoute{"POST", u"/api/clear", api::clear},
    ApiRoute{"POST", u"/api/scripts/{name}/run", api::runScript},
    ApiRoute{"POST", u"/api/set/{number}", api::showSet},
    ApiRoute{"POST", u"/api/variables/{name}", api::setVariable},
    ApiRoute{"POST", u"/api/scores/{side}", api::setScore},
    ApiRoute{"POST", u"/api/players/clear", api::clearTags},
    ApiRoute{"POST", u"/api/players/{side}/{index}/tag", api::tagPlayer},
    ApiRoute{"POST", u"/api/players/{side}/five/{place}", api::setStarter},
    ApiRoute{"POST", u"/api/proposals/{number}/take", api::takeProposal},
};

// What stands in the place of the braces; nullopt when the path is another one.
std::optional<QStringList> match(QStringView route, const QStringList& path) {
    const auto pieces = route.mid(1).split(u'/');
    if (pieces.size() != path.size()) return std::nullopt;
    QStringList values;
    for (qsizetype i = 0; i < path.size(); ++i) {
        if (pieces[i].startsWith(u'{')) {
            values += path[i];
        } else if (pieces[i] != path[i]) {
            return std::nullopt;
        }
    }
    return values;
}

// The body as an object, an empty one for none; nullopt when it is neither.
std::optional<QJsonObject> readBody(const QByteArray& body) {
    if (body.trimmed().isEmpty()) return QJsonObject();
    const QJsonDocument document = QJsonDocument::fromJson(body);
    return document.isObject() ? std::optional(document.object()) : std::nullopt;
}

// The texts of "answers"; nullopt when it is no list of texts and numbers.
std::optional<QStringList> readAnswers(const QJsonObject& body) {
    constexpr qsizetype kMost = 50;
    const QJsonValue given = body.value("answers"_L1);
    if (given.isUndefined()) return QStringList();
    const QJsonArray list = given.toArray();
    if (!given.isArray() || list.size() > kMost) return std::nullopt;
    QStringList answers;
    for (const auto& each : list) {
        const std::optional<QString> text = api::scalarText(each);
        if (!text) return std::nullopt;
        answers += *text;
    }
    return answers;
}

}  // namespace

std::span<const ApiRoute> apiRoutes() {
    return kRoutes;
}

HttpResponse jsonResponse(const DeedResult& result) {
    QJsonObject body = result.body;
    if (body.isEmpty()) body.insert(u"outcome"_s, u"done"_s);
    return {result.status,
            "application/json",
            QJsonDocument(body).toJson(QJsonDocument::Compact) + '\n',
            {{"X-Content-Type-Options", "nosniff"}}};
}

void answerApi(RemoteConsole& console, const StateView& view, const HttpRequest& request, const SendResponse& send) {
    const RemoteConsole::Done done = [send](const DeedResult& result) { send(jsonResponse(result)); };
    QByteArrayList allowed;
    for (const ApiRoute& route : kRoutes) {
        const std::optional<QStringList> values = match(route.path, request.path);
        if (!values) continue;
        if (route.method != request.method) {
            allowed += route.method.toByteArray();
            continue;
        }
        const std::optional<QJsonObject> body = readBody(request.body);
        if (!body) return done(wrongDeed(400, u"the body is no JSON object"_s));
        const std::optional<QStringList> answers = readAnswers(*body);
        if (!answers) return done(wrongDeed(400, u"\"answers\" is no list of texts and numbers"_s));
        const QString from = u"HTTP "_s + request.peer.toString();
        return route.handler({console, view, *values, *body, {from, *answers, done}});
    }
    if (allowed.isEmpty()) return done(wrongDeed(404, u"there is nothing at "_s + request.pathText()));
    HttpResponse response = jsonResponse(wrongDeed(405, u"not by this method"_s));
    response.headers.emplace_back("Allow", allowed.join(", "));
    send(response);
}

}  // namespace zelvor
