#pragma once

#include <QString>
#include <optional>
#include <vector>

#include "rehearsal/command_table.h"

namespace zelvor::rehearsal {

// What the server knows of one client: the commands that it collects between BEGIN and COMMIT.
struct AmcpClient {
    static constexpr std::size_t kMaxBatch = 1000;                  // commands
    static constexpr qsizetype kMaxBatchText = qsizetype{4} << 20;  // characters of their lines

    struct Collected {
        const CommandRow* row;
        Command command;
        QString requestId;
    };

    ChannelLocks::ClientId id = 0;
    std::optional<std::vector<Collected>> batch = {};  // nothing while each line is carried out as it comes
    qsizetype batchText = 0;
    bool hasSaidBye = false;
};

}  // namespace zelvor::rehearsal
