#pragma once

#include <QString>
#include <QStringList>
#include <QStringView>
#include <optional>
#include <span>

#include "rehearsal/channel_locks.h"
#include "rehearsal/stage.h"
#include "rehearsal/stored_data.h"
#include "rehearsal/template_folder.h"

namespace zelvor::rehearsal {

// One line, taken apart. Its channel and the number of its parameters are already checked.
struct Command {
    QString name;  // as in the table, e.g. "CG ADD"
    int channel = 0;
    std::optional<int> layer = {};  // empty when the line names only a channel
    LayerAddress at = {};           // the channel, and the layer or the command's usual one
    QStringList parameters = {};
    ChannelLocks::ClientId client = 0;

    // The first word, which replies of success and of form errors name.
    [[nodiscard]] QString word() const { return name.section(u' ', 0, 0); }
};

// What commands work on.
struct Host {
    Stage& stage;
    const TemplateFolder& folder;
    StoredData data = {};
    ChannelLocks locks = {};
    QString logLevel = QStringLiteral("info");
};

// One command. A row is all there is to adding one: its words, how many parameters it needs, and what it does.
struct CommandRow {
    // Layer: the line must name a channel. Locks: the same, also while others have locked that channel.
    enum class Target { Server, ServerOrChannel, Layer, Locks };

    QStringView name;
    Target target;
    int usualLayer;  // for a line without a layer
    int minimumParameters;
    QString (*run)(const Command& command, Host& host);  // gives the whole reply
};

// All commands. Two words ("CG ADD") are written "CG 1-20 ADD" in a line.
std::span<const CommandRow> commandTable();

}  // namespace zelvor::rehearsal
