#pragma once

#include <QString>

#include "rehearsal/amcp_client.h"

namespace zelvor::rehearsal {

// Carries out AMCP lines on a stage and words the replies.
class AmcpInterpreter {
 public:
    // Both must outlive the interpreter.
    AmcpInterpreter(Stage& stage, const TemplateFolder& folder) : host_{stage, folder} {}

    // The whole reply to one line (without its line end), CR LF ends included; empty where none is due. Bad lines get
    // an error reply. With BYE the client's hasSaidBye is set.
    QString answer(const QString& line, AmcpClient& client);

    // To be told when a client goes: what it has locked is free again.
    void leave(const AmcpClient& client) { host_.locks.leave(client.id); }

 private:
    struct Request;

    QString run(Request& request, AmcpClient& client);
    QString commit(AmcpClient& client);
    QString execute(const CommandRow& row, const Command& command);

    Host host_;
};

}  // namespace zelvor::rehearsal
