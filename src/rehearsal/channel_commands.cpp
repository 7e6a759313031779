#include "rehearsal/channel_commands.h"

#include "rehearsal/place.h"
#include "rehearsal/reply.h"

using namespace Qt::StringLiterals;

namespace zelvor::rehearsal {

namespace {

// The number an output is known by: of the line's layer, or made from its words.
QString outputName(const Command& command) {
    return command.layer ? QString::number(*command.layer) : command.parameters.join(u' ').toUpper();
}

}  // namespace

QString clearAll(const Command& command, Host& host) {
    for (int channel = 1; channel <= host.stage.channelCount(); ++channel) {
        host.stage.clearChannel(channel);
    }
    return reply::ok(command.name);
}

QString swapPlaces(const Command& command, Host& host) {
    const auto other = parsePlace(command.parameters.first());
    if (!other || !host.stage.hasChannel(other->channel) || other->layer.has_value() != command.layer.has_value()) {
        return reply::failed(command.name);
    }
    const bool withMixers = command.parameters.value(1).compare("TRANSFORMS"_L1, Qt::CaseInsensitive) == 0;
    if (!command.layer) {
        host.stage.swapChannels(command.channel, other->channel, withMixers);
    } else if (const LayerAddress at{other->channel, *other->layer};
               host.stage.hasRoomFor(command.at) && host.stage.hasRoomFor(at)) {
        host.stage.swapLayers(command.at, at, withMixers);
    } else {
        return reply::failed(command.name);
    }
    return reply::ok(command.name);
}

QString addOutput(const Command& command, Host& host) {
    static const QStringList kKinds = {u"SCREEN"_s, u"SYSTEM-AUDIO"_s, u"AUDIO"_s,  u"DECKLINK"_s, u"BLUEFISH"_s,
                                       u"NDI"_s,    u"FILE"_s,         u"STREAM"_s, u"IMAGE"_s,    u"ARTNET"_s};
    if (!kKinds.contains(command.parameters.first().toUpper())) {
        return reply::notFound(command.name);
    }
    const bool isAdded = host.stage.addOutput(command.channel, outputName(command), command.parameters.join(u' '));
    return isAdded ? reply::ok(command.name) : reply::failed(command.name);
}

QString removeOutput(const Command& command, Host& host) {
    const bool wasThere = host.stage.removeOutput(command.channel, outputName(command));
    return wasThere ? reply::ok(command.name) : reply::notFound(command.name);
}

QString setMode(const Command& command, Host& host) {
    const auto mode = videoModeNamed(command.parameters.first());
    if (!mode) {
        return reply::failed(command.name);
    }
    host.stage.setMode(command.channel, *mode);
    return reply::ok(command.name);
}

QString setUnknown(const Command& command, Host& /*host*/) {
    return reply::illegal(command.name);
}

QString lockAcquire(const Command& command, Host& host) {
    const bool isHeld = host.locks.acquire(command.channel, command.parameters.first(), command.client);
    return isHeld ? reply::ok(command.name) : reply::noAccess(command.name);
}

QString lockRelease(const Command& command, Host& host) {
    host.locks.release(command.channel, command.client);
    return reply::ok(command.name);
}

QString lockClear(const Command& command, Host& host) {
    host.locks.clear(command.channel);
    return reply::ok(command.name);
}

}  // namespace zelvor::rehearsal
