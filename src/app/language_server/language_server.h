#pragma once

#include <QHash>
#include <QJsonObject>
#include <functional>

#include "app_language_server/workspace.h"

namespace zelvor {

// The language server without its streams: takes the messages of an editor and answers them. Findings are told when
// idle() is called, so that what is being typed is not waited for. Nothing that is received ends it but "exit".
class LanguageServer {
 public:
    using Send = std::function<void(const QJsonObject& message)>;
    explicit LanguageServer(Send send) : send_(std::move(send)) {}

    // One message, as its bytes.
    void receive(const QByteArray& message);
    // Tells the findings of every pack in which something has changed.
    void idle();
    [[nodiscard]] bool hasChanges() const;
    [[nodiscard]] bool ended() const { return ended_; }
    // 0 after "shutdown", else 1, as the protocol wants it.
    [[nodiscard]] int exitStatus() const { return shutDown_ ? 0 : 1; }

 private:
    using Handler = QJsonValue (LanguageServer::*)(const QJsonObject& params);
    static const QHash<QString, Handler>& handlers();

    // The line at the position of a request, and the pack of its file.
    struct Spot {
        OpenPack* pack = nullptr;  // null for a file of no pack and for a position outside of the file
        QString path;
        QString line;
        qsizetype column = 0;
    };
    Spot spotOf(const QJsonObject& params);

    QJsonValue initialize(const QJsonObject& params);
    QJsonValue shutdown(const QJsonObject& params);
    QJsonValue didOpen(const QJsonObject& params);
    QJsonValue didChange(const QJsonObject& params);
    QJsonValue didClose(const QJsonObject& params);
    QJsonValue filesChanged(const QJsonObject& params);
    QJsonValue completion(const QJsonObject& params);
    QJsonValue hover(const QJsonObject& params);
    QJsonValue definition(const QJsonObject& params);
    QJsonValue rename(const QJsonObject& params);
    QJsonValue outline(const QJsonObject& params);

    void setText(const QString& path, const QString& text);
    void fail(const QJsonValue& id, int code, const QString& text);

    Send send_;
    Workspace workspace_;
    bool shutDown_ = false;
    bool ended_ = false;
};

}  // namespace zelvor
