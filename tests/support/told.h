#pragma once

#include <QTextStream>

#include "command_line/command_line.h"

namespace zelvor::test {

// What a subcommand of `zelvor` said, and how it ended; a wrong usage is said as an error.
struct Told {
    template <class Run>
    Told(Run&& run, const QStringList& arguments) {
        QTextStream outStream(&out);
        QTextStream errStream(&err);
        try {
            status = static_cast<int>(run(arguments, outStream, errStream));
        } catch (const UsageError& error) {
            err = error.text;
        }
    }

    QString out;
    QString err;
    int status = UsageError::kExitStatus;
};

}  // namespace zelvor::test
