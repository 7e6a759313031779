#pragma once

#include <QStringList>
#include <QTextStream>
#include <optional>
#include <vector>

#include "base/text_file.h"

namespace zelvor {

struct ServerAddress {
    QString host;
    QString port;
};

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
    bool help = false;
    qint16 connection = 1;
    std::optional<ServerAddress> main;
    std::optional<ServerAddress> remote;
};

// nullopt after saying on `err` what is wrong with the arguments.
std::optional<RunOptions> parseRunOptions(const QStringList& arguments, QTextStream& err);

// The text of `zelvor run --help`.
QString runHelp();

}  // namespace zelvor
