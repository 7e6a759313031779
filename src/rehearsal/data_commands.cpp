#include "rehearsal/data_commands.h"

#include "rehearsal/reply.h"

namespace zelvor::rehearsal {

QString dataStore(const Command& command, Host& host) {
    const bool isStored = host.data.store(command.parameters[0], command.parameters[1]);
    return isStored ? reply::ok(command.name) : reply::failed(command.name);
}

QString dataRetrieve(const Command& command, Host& host) {
    const auto text = host.data.find(command.parameters.first());
    return text ? reply::okWith(command.name, *text) : reply::notFound(command.name);
}

QString dataRemove(const Command& command, Host& host) {
    return host.data.remove(command.parameters.first()) ? reply::ok(command.name) : reply::notFound(command.name);
}

QString dataList(const Command& command, Host& host) {
    return reply::okLines(command.name, host.data.names());
}

}  // namespace zelvor::rehearsal
