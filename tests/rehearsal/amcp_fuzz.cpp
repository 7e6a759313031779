#include <QDir>

#include "rehearsal/amcp_interpreter.h"
#include "rehearsal/line_buffer.h"

using namespace zelvor::rehearsal;

// Each line of a client is answered in whole lines, or not at all, until it says BYE.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    static const TemplateFolder folder(QDir::tempPath());
    Stage stage(2);
    AmcpInterpreter interpreter(stage, folder);
    AmcpClient client;
    LineBuffer buffer;
    buffer.append({reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)});
    while (const auto line = buffer.next()) {
        const QString answer = interpreter.answer(QString::fromUtf8(line->bytes), client);
        if (!answer.isEmpty() && !answer.endsWith(QStringLiteral("\r\n"))) __builtin_trap();
        if (client.hasSaidBye) break;
    }
    interpreter.leave(client);
    return 0;
}
