#include "app_language_server/language_server_command.h"

#include <QJsonDocument>
#include <array>
#include <cstdio>

#include "app_language_server/language_server.h"
#include "app_language_server/message_reader.h"
#include "command_line/command_line.h"
#include "system/terminal.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

const QString kUsage =
    uR"(usage: zelvor language-server

Serves an editor of packs by the language server protocol, over standard input and output.

Editors start it themselves. It tells findings while scripts are typed, completes commands, variables, controls, files and
functions, explains them, finds and renames variables, and lists the blocks of a script.

Exit status: 0 after the editor has taken its leave, 1 when it has gone without, 2 for wrong usage.
)"_s;

void write(const QJsonObject& message) {
    const QByteArray body = QJsonDocument(message).toJson(QJsonDocument::Compact);
    const QByteArray framed = "Content-Length: " + QByteArray::number(body.size()) + "\r\n\r\n" + body;
    std::fwrite(framed.constData(), 1, static_cast<size_t>(framed.size()), stdout);
    std::fflush(stdout);
}

}  // namespace

int runLanguageServer(const QStringList& arguments, QTextStream& out, QTextStream&) {
    constexpr int kQuiet = 150;  // milliseconds without a message before findings are told
    static const std::array kOptions{CommandLine::Option{u"--help"_s}, CommandLine::Option{u"-h"_s},
                                     CommandLine::Option{u"--stdio"_s}};
    const CommandLine line(arguments, kOptions);
    if (line.has(u"--help") || line.has(u"-h")) {
        out << kUsage;
        return 0;
    }
    line.check();
    LanguageServer server(write);
    MessageReader reader;
    constexpr qsizetype kPiece = 65536;
    while (!server.ended()) {
        if (server.hasChanges() && !inputIsReady(kQuiet)) server.idle();
        const QByteArray piece = readInput(kPiece);
        if (piece.isEmpty()) break;
        reader.add(piece);
        while (const auto message = reader.next()) server.receive(*message);
    }
    return server.exitStatus();
}

}  // namespace zelvor
