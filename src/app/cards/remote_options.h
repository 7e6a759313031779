#pragma once

#include <QHostAddress>
#include <QStringList>
#include <optional>
#include <vector>

#include "command_line/command_line.h"

namespace zelvor {

// Where the console may be controlled from outside; nothing where nothing was named.
struct RemoteOptions {
    struct Control {
        HostPort listen;  // port 0: any free one
        QHostAddress address;
        QByteArray token;
        QString certificate;  // files; empty: not encrypted
        QString key;
    };
    struct Osc {
        HostPort listen;
        QHostAddress address;
        QList<QHostAddress> allowed;  // beside this computer
    };
    std::optional<Control> control = {};
    std::optional<Osc> osc = {};
};

// The options that readRemoteOptions() reads.
std::vector<CommandLine::Option> remoteOptionNames();
// Throws UsageError, also for an address beside loopback without what guards it.
RemoteOptions readRemoteOptions(const CommandLine& line);

}  // namespace zelvor
