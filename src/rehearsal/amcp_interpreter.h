#pragma once

#include <QString>

#include "rehearsal/command_table.h"

namespace zelvor::rehearsal {

// Carries out AMCP lines on a stage and words the replies.
class AmcpInterpreter {
 public:
    // Both must outlive the interpreter.
    AmcpInterpreter(Stage& stage, const TemplateFolder& folder) : host_{stage, folder} {}

    // The whole reply to one line (without its line end), CR LF ends included. Bad lines get an error reply.
    QString answer(const QString& line);

 private:
    QString run(QStringList tokens, const QString& line);

    Host host_;
};

}  // namespace zelvor::rehearsal
