#pragma once

#include <QStringList>
#include <optional>
#include <vector>

#include "base/text_file.h"
#include "command_line/host_port.h"
#include "data/session.h"

namespace zelvor {

// What the command line of `zelvor run` asks for.
struct RunOptions {
    QString card;
    QString appFolder;
    QString language;  // empty: the first pack whose folder exists
    TextFiles files;
    std::vector<std::pair<QString, QString>> variables;
    QStringList answers;
    bool preview = false;
    bool yes = true;
    bool autoRun = false;
    bool keepStates = false;
    bool printVariables = false;
    bool start = false;
    bool watch = false;
    bool help = false;
    qint16 connection = 1;
    int querySeconds = Patience::kSeconds;
    std::optional<HostPort> main;
    std::optional<HostPort> remote;
};

// Throws UsageError.
RunOptions readRunOptions(const QStringList& arguments);

// The text of `zelvor run --help`.
QString runHelp();

}  // namespace zelvor
