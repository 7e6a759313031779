#include "rehearsal/mixer_commands.h"

#include <algorithm>
#include <cmath>

#include "rehearsal/reply.h"

using namespace Qt::StringLiterals;

namespace zelvor::rehearsal {

namespace {

// The first COUNT parameters as numbers; nothing when one of them is none.
std::optional<std::vector<double>> numbers(const Command& command, qsizetype count) {
    std::vector<double> values;
    for (const QString& parameter : command.parameters.first(count)) {
        bool isNumber = false;
        values.push_back(parameter.toDouble(&isNumber));
        if (!isNumber || !std::isfinite(values.back())) {
            return std::nullopt;
        }
    }
    return values;
}

// One number stands as it is, several with six decimals each.
QString asText(const std::vector<double>& values) {
    if (values.size() == 1) {
        return QString::number(values.front());
    }
    QStringList texts;
    for (const double value : values) {
        texts.append(QString::number(value, 'f', 6));
    }
    return texts.join(u' ');
}

bool isDeferred(const Command& command) {
    return !command.parameters.isEmpty() && command.parameters.last().compare("DEFER"_L1, Qt::CaseInsensitive) == 0;
}

// The common end of all changes to a layer: CHANGE is made to its mixer, now or on COMMIT.
template <typename Change>
QString change(const Command& command, Host& host, Change change) {
    if (!host.stage.hasRoomFor(command.at)) {
        return reply::failed(command.name);
    }
    const auto when = isDeferred(command) ? Stage::When::OnCommit : Stage::When::Now;
    Mixer mixer = host.stage.mixer(command.at, when);
    change(mixer);
    host.stage.setMixer(command.at, mixer, when);
    return reply::ok(command.word());
}

}  // namespace

QString mixerProperty(const Command& command, Host& host) {
    const QString property = command.name.section(u' ', 1);
    const std::vector<double> current = host.stage.mixer(command.at).values(property);
    if (command.parameters.isEmpty()) {
        return reply::okWith(command.word(), asText(current));
    }
    // The key alone switches CHROMA; every other property takes all its numbers.
    const auto count = property == "CHROMA"_L1 && command.parameters.size() < std::ssize(current)
                           ? 1
                           : static_cast<qsizetype>(current.size());
    if (command.parameters.size() < count) {
        return reply::parameterMissing(command.name);
    }
    auto values = numbers(command, count);
    if (!values) {
        return reply::failed(command.name);
    }
    if (property == "OPACITY"_L1) {
        values->front() = std::clamp(values->front(), 0.0, 1.0);
    }
    return change(command, host, [&](Mixer& mixer) {
        mixer.set(property, *values);
        mixer.frames = std::clamp(command.parameters.value(count).toInt(), 0, Mixer::kMaxFrames);
    });
}

QString mixerBlend(const Command& command, Host& host) {
    if (command.parameters.isEmpty()) {
        return reply::okWith(command.word(), host.stage.mixer(command.at).blend());
    }
    return change(command, host, [&](Mixer& mixer) { mixer.setBlend(command.parameters.first()); });
}

QString mixerMasterVolume(const Command& command, Host& host) {
    if (command.parameters.isEmpty()) {
        return reply::okWith(command.word(), asText({host.stage.masterVolume(command.channel)}));
    }
    const auto values = numbers(command, 1);
    if (!values) {
        return reply::failed(command.name);
    }
    host.stage.setMasterVolume(command.channel, values->front());
    return reply::ok(command.word());
}

QString mixerGrid(const Command& command, Host& host) {
    constexpr int kMaxSide = 10;  // layers in use are limited
    bool isNumber = false;
    const int side = command.parameters.first().toInt(&isNumber);
    if (!isNumber || side < 1 || side > kMaxSide) {
        return reply::failed(command.name);
    }
    const double size = 1.0 / side;
    for (int i = 0; i < side * side; ++i) {
        const LayerAddress at{command.channel, i + 1};
        if (host.stage.hasRoomFor(at)) {
            Mixer mixer = host.stage.mixer(at);
            const int row = i / side;
            mixer.set(u"FILL", {i % side * size, row * size, size, size});
            mixer.frames = std::clamp(command.parameters.value(1).toInt(), 0, Mixer::kMaxFrames);
            host.stage.setMixer(at, mixer);
        }
    }
    return reply::ok(command.word());
}

QString mixerCommit(const Command& command, Host& host) {
    host.stage.commitMixers(command.channel);
    return reply::ok(command.word());
}

QString mixerClear(const Command& command, Host& host) {
    if (!command.layer) {
        host.stage.resetMixers(command.channel);
    } else if (host.stage.hasRoomFor(command.at)) {
        host.stage.setMixer(command.at, {});
    }
    return reply::ok(command.word());
}

}  // namespace zelvor::rehearsal
