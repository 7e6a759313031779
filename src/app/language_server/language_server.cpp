#include "app_language_server/language_server.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QRegularExpression>
#include <QUrl>
#include <algorithm>
#include <utility>

#include "app_language_server/completion.h"
#include "app_language_server/renaming.h"
#include "app_language_server/text_place.h"
#include "base/run_time_error.h"
#include "engine/card_engine.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

// Numbers of the protocol.
constexpr int kParseError = -32700;
constexpr int kInvalidRequest = -32600;
constexpr int kMethodNotFound = -32601;
constexpr int kRequestFailed = -32803;
constexpr int kErrorSeverity = 1;
constexpr int kWarningSeverity = 2;
constexpr int kEventSymbol = 24;

QString pathOf(const QJsonObject& params) {
    const QString uri = params[u"textDocument"_s].toObject()[u"uri"_s].toString();
    return QUrl(uri).toLocalFile();
}

QString uriOf(const QString& path) {
    return QString::fromLatin1(QUrl::fromLocalFile(path).toEncoded());
}

QJsonObject location(const QString& path, const QJsonObject& range) {
    return {{u"uri"_s, uriOf(path)}, {u"range"_s, range}};
}

QString lineOf(PackFiles& files, const QString& path, int line) {
    try {
        return files.lines(path).value(line);
    } catch (const RunTimeError&) {
        return {};
    }
}

}  // namespace

const QHash<QString, LanguageServer::Handler>& LanguageServer::handlers() {
    static const QHash<QString, Handler> kHandlers{
        {u"initialize"_s, &LanguageServer::initialize},
        {u"shutdown"_s, &LanguageServer::shutdown},
        {u"textDocument/didOpen"_s, &LanguageServer::didOpen},
        {u"textDocument/didChange"_s, &LanguageServer::didChange},
        {u"textDocument/didClose"_s, &LanguageServer::didClose},
        {u"workspace/didChangeWatchedFiles"_s, &LanguageServer::filesChanged},
        {u"textDocument/completion"_s, &LanguageServer::completion},
        {u"textDocument/hover"_s, &LanguageServer::hover},
        {u"textDocument/definition"_s, &LanguageServer::definition},
        {u"textDocument/rename"_s, &LanguageServer::rename},
        {u"textDocument/documentSymbol"_s, &LanguageServer::outline},
    };
    return kHandlers;
}

void LanguageServer::receive(const QByteArray& bytes) {
    QJsonParseError fault{};
    const QJsonDocument document = QJsonDocument::fromJson(bytes, &fault);
    if (fault.error != QJsonParseError::NoError) return fail(QJsonValue::Null, kParseError, fault.errorString());
    const QJsonObject message = document.object();
    const QString method = message[u"method"_s].toString();
    const QJsonValue id = message[u"id"_s];
    if (method == u"exit") {
        ended_ = true;
        return;
    }
    if (shutDown_) {
        if (!id.isUndefined()) fail(id, kInvalidRequest, u"shut down already"_s);
        return;
    }
    const Handler handler = handlers().value(method, nullptr);
    if (handler == nullptr) {
        // Notifications that are not known are passed over.
        if (!id.isUndefined()) fail(id, method.isEmpty() ? kInvalidRequest : kMethodNotFound, u"no method "_s + method);
        return;
    }
    try {
        const QJsonValue result = (this->*handler)(message[u"params"_s].toObject());
        if (!id.isUndefined()) send_({{u"jsonrpc"_s, u"2.0"_s}, {u"id"_s, id}, {u"result"_s, result}});
    } catch (const RunTimeError& error) {
        if (!id.isUndefined()) fail(id, kRequestFailed, error.text());
    }
}

void LanguageServer::fail(const QJsonValue& id, int code, const QString& text) {
    send_(
        {{u"jsonrpc"_s, u"2.0"_s}, {u"id"_s, id}, {u"error"_s, QJsonObject{{u"code"_s, code}, {u"message"_s, text}}}});
}

bool LanguageServer::hasChanges() const {
    return std::ranges::any_of(workspace_.packs(), [](const auto& pack) { return pack.second->changed; });
}

void LanguageServer::idle() {
    for (auto& [folder, pack] : workspace_.packs()) {
        if (!std::exchange(pack->changed, false)) continue;
        std::map<QString, QJsonArray> byFile;
        // Files of which there is nothing more to tell are told so.
        for (const QString& path : std::exchange(pack->toldFiles, {})) byFile[path];
        Findings findings = pack->check.findings();
        for (const Finding& finding : findings.sorted()) {
            const QString path = pack->folder.path() + u'/' + finding.place.file;
            const int line = std::max(0, finding.place.line - 1);
            const QString text = lineOf(pack->check.files(), path, line);
            byFile[path] += QJsonObject{{u"range"_s, lineRange(line, 0, text.size())},
                                        {u"severity"_s, finding.isError ? kErrorSeverity : kWarningSeverity},
                                        {u"source"_s, u"zelvor"_s},
                                        {u"message"_s, finding.text}};
            pack->toldFiles += path;
        }
        for (const auto& [path, diagnostics] : byFile) {
            send_({{u"jsonrpc"_s, u"2.0"_s},
                   {u"method"_s, u"textDocument/publishDiagnostics"_s},
                   {u"params"_s, QJsonObject{{u"uri"_s, uriOf(path)}, {u"diagnostics"_s, diagnostics}}}});
        }
    }
}

LanguageServer::Spot LanguageServer::spotOf(const QJsonObject& params) {
    Spot spot;
    spot.path = pathOf(params);
    spot.pack = workspace_.packOf(spot.path);
    if (spot.pack == nullptr) return spot;
    if (spot.pack->check.scripts().size() <= 1) (void)spot.pack->check.findings();  // the first look at the pack
    const QJsonObject position = params[u"position"_s].toObject();
    spot.line = lineOf(spot.pack->check.files(), spot.path, position[u"line"_s].toInt());
    spot.column = position[u"character"_s].toInt();
    return spot;
}

QJsonValue LanguageServer::initialize(const QJsonObject&) {
    const QJsonObject completion{{u"triggerCharacters"_s, QJsonArray{u"~"_s, u"@"_s, u"{"_s, u";"_s}}};
    const QJsonObject capabilities{{u"positionEncoding"_s, u"utf-16"_s},  {u"textDocumentSync"_s, 1},
                                   {u"completionProvider"_s, completion}, {u"hoverProvider"_s, true},
                                   {u"definitionProvider"_s, true},       {u"renameProvider"_s, true},
                                   {u"documentSymbolProvider"_s, true}};
    const QJsonObject info{{u"name"_s, u"zelvor"_s}, {u"version"_s, QStringLiteral(ZELVOR_VERSION)}};
    return QJsonObject{{u"capabilities"_s, capabilities}, {u"serverInfo"_s, info}};
}

QJsonValue LanguageServer::shutdown(const QJsonObject&) {
    shutDown_ = true;
    return QJsonValue::Null;
}

void LanguageServer::setText(const QString& path, const QString& text) {
    OpenPack* pack = workspace_.packOf(path);
    if (pack == nullptr) return;
    pack->check.files().setText(path, text);
    pack->check.changed(path);
    pack->changed = true;
}

QJsonValue LanguageServer::didOpen(const QJsonObject& params) {
    setText(pathOf(params), params[u"textDocument"_s].toObject()[u"text"_s].toString());
    return {};
}

// The whole text comes with every change.
QJsonValue LanguageServer::didChange(const QJsonObject& params) {
    const QJsonArray changes = params[u"contentChanges"_s].toArray();
    if (!changes.isEmpty()) setText(pathOf(params), changes.last().toObject()[u"text"_s].toString());
    return {};
}

QJsonValue LanguageServer::didClose(const QJsonObject& params) {
    const QString path = pathOf(params);
    if (OpenPack* pack = workspace_.packOf(path)) {
        pack->check.files().dropText(path);
        pack->check.changed(path);
        pack->changed = true;
    }
    return {};
}

QJsonValue LanguageServer::filesChanged(const QJsonObject& params) {
    for (const QJsonValue change : params[u"changes"_s].toArray()) {
        const QString path = QUrl(change.toObject()[u"uri"_s].toString()).toLocalFile();
        if (OpenPack* pack = workspace_.packOf(path)) {
            pack->check.changed(path);
            pack->changed = true;
        }
    }
    return {};
}

QJsonValue LanguageServer::completion(const QJsonObject& params) {
    const Spot spot = spotOf(params);
    return spot.pack == nullptr ? QJsonArray() : completionsAt(*spot.pack, spot.line, spot.column);
}

QJsonValue LanguageServer::hover(const QJsonObject& params) {
    const Spot spot = spotOf(params);
    const QString text = hoverAt(spot.line, spot.column);
    if (text.isEmpty()) return QJsonValue::Null;
    return QJsonObject{{u"contents"_s, QJsonObject{{u"kind"_s, u"markdown"_s}, {u"value"_s, text}}}};
}

// Where a variable is set; the file of a card or an include.
QJsonValue LanguageServer::definition(const QJsonObject& params) {
    const Spot spot = spotOf(params);
    if (spot.pack == nullptr) return QJsonArray();
    const QString word = wordAt(spot.line, spot.column);
    QJsonArray places;
    PackFiles& files = spot.pack->check.files();
    if (word.contains(u'.') && files.exists(CardEngine::scriptName(word))) {
        places += location(files.path(CardEngine::scriptName(word)), lineRange(0, 0, 0));
        return places;
    }
    for (const auto& [path, facts] : spot.pack->check.scripts()) {
        for (const NamePlace& set : facts.sets) {
            if (set.name != word && set.name != u'@' + word) continue;
            const int line = set.place.line - 1;
            const QString file = spot.pack->folder.path() + u'/' + set.place.file;
            const QJsonObject place = location(file, lineRange(line, 0, lineOf(files, file, line).size()));
            if (!places.contains(place)) places += place;
        }
    }
    return places;
}

QJsonValue LanguageServer::rename(const QJsonObject& params) {
    static const QRegularExpression kName(u"^@?[\\p{L}\\p{N}_]+$"_s, QRegularExpression::UseUnicodePropertiesOption);
    const Spot spot = spotOf(params);
    const QString word = wordAt(spot.line, spot.column);
    QString newName = params[u"newName"_s].toString();
    if (spot.pack == nullptr || !word.contains(QRegularExpression(u"^@?[\\w]"_s)) || !newName.contains(kName)) {
        throw RunTimeError::withText(ErrorNumber::InvalidProcedureCall,
                                     u"no variable to be renamed, or no name for it"_s);
    }
    if (newName.startsWith(u'@')) newName.remove(0, 1);
    QJsonObject changes;
    for (const TextSpan& span : placesOf(*spot.pack, word.startsWith(u'@') ? word : u'@' + word)) {
        const QString uri = uriOf(span.path);
        QJsonArray edits = changes[uri].toArray();
        edits += QJsonObject{{u"range"_s, lineRange(span.line, span.from, span.to)}, {u"newText"_s, newName}};
        changes[uri] = edits;
    }
    return QJsonObject{{u"changes"_s, changes}};
}

// The blocks and loops of a script by their labels.
QJsonValue LanguageServer::outline(const QJsonObject& params) {
    const QString path = pathOf(params);
    OpenPack* pack = workspace_.packOf(path);
    QJsonArray symbols;
    if (pack == nullptr) return symbols;
    const QStringList lines = pack->check.files().lines(path);
    for (qsizetype i = 0; i < lines.size(); ++i) {
        const QString word = lines[i].section(u'~', 0, 0).trimmed().toUpper();
        if (word != u"FI" && word != u"IF" && word != u"FOREACHREC") continue;
        const QJsonObject range = lineRange(static_cast<int>(i), 0, lines[i].size());
        const QString label = word == u"IF" ? lines[i].section(u';', 3) : lines[i].section(u'~', 1, 1);
        symbols += QJsonObject{{u"name"_s, QString(word + u'~' + label)},
                               {u"kind"_s, kEventSymbol},
                               {u"range"_s, range},
                               {u"selectionRange"_s, range}};
    }
    return symbols;
}

}  // namespace zelvor
