#include "rehearsal/stage.h"

#include <utility>

namespace zelvor::rehearsal {

Stage::Stage(int channels) : channels_(static_cast<std::size_t>(channels)) {}

const std::map<int, Layer>& Stage::layers(int channel) const {
    return channels_.at(static_cast<std::size_t>(channel) - 1);
}

bool Stage::hasRoomFor(LayerAddress at) const {
    return find(at) != nullptr || layers(at.channel).size() < kMaxLayersInUse;
}

void Stage::show(LayerAddress at, Source source, bool paused) {
    Layer& layer = obtain(at);
    source.id = ++lastSourceId_;
    layer.foreground = std::move(source);
    layer.paused = paused;
    changed(at);
    for (const TemplateCall& call : layer.foreground.history.calls()) {
        Q_EMIT called(layer.foreground.id, call);
    }
}

void Stage::prepare(LayerAddress at, Source source) {
    source.id = ++lastSourceId_;
    obtain(at).background = std::move(source);
    changed(at);
}

void Stage::take(LayerAddress at) {
    Layer* layer = find(at);
    if (layer == nullptr) {
        return;
    }
    if (layer->background.id != 0) {
        layer->foreground = std::exchange(layer->background, {});
    }
    layer->paused = false;
    changed(at);
}

void Stage::setPaused(LayerAddress at, bool paused) {
    if (Layer* layer = find(at)) {
        layer->paused = paused;
        changed(at);
    }
}

void Stage::stop(LayerAddress at) {
    if (Layer* layer = find(at)) {
        layer->foreground = {};
        layer->paused = false;
        changed(at);
    }
}

void Stage::clear(LayerAddress at) {
    if (Layer* layer = find(at)) {
        layer->foreground = {};
        layer->background = {};
        layer->paused = false;
        changed(at);
    }
}

void Stage::clearChannel(int channel) {
    for (const int number : layerNumbers(channel)) {
        clear({channel, number});
    }
}

bool Stage::showsTemplate(LayerAddress at) const {
    const Layer* layer = find(at);
    return layer != nullptr && layer->foreground.kind == Source::Kind::Template;
}

void Stage::call(LayerAddress at, const TemplateCall& call) {
    if (!showsTemplate(at)) {
        return;
    }
    Source& source = find(at)->foreground;
    source.history.add(call);
    Q_EMIT called(source.id, call);
    if (call.function == TemplateCall::Function::Remove) {
        stop(at);
    }
}

Mixer Stage::mixer(LayerAddress at) const {
    const Layer* layer = find(at);
    return layer == nullptr ? Mixer{} : layer->mixer;
}

void Stage::setMixer(LayerAddress at, const Mixer& mixer) {
    obtain(at).mixer = mixer;
    changed(at);
}

void Stage::resetMixers(int channel) {
    for (const int number : layerNumbers(channel)) {
        setMixer({channel, number}, {});
    }
}

// A copy, for loops that may let go of a layer.
std::vector<int> Stage::layerNumbers(int channel) const {
    std::vector<int> numbers;
    for (const auto& entry : layers(channel)) {
        numbers.push_back(entry.first);
    }
    return numbers;
}

const Layer* Stage::find(LayerAddress at) const {
    const auto& channel = layers(at.channel);
    const auto found = channel.find(at.layer);
    return found == channel.end() ? nullptr : &found->second;
}

Layer* Stage::find(LayerAddress at) {
    return const_cast<Layer*>(std::as_const(*this).find(at));
}

Layer& Stage::obtain(LayerAddress at) {
    return channels_.at(static_cast<std::size_t>(at.channel) - 1)[at.layer];
}

// Tells the pages, and lets go of a layer that holds nothing and is shown plainly.
void Stage::changed(LayerAddress at) {
    const Layer* layer = find(at);
    const bool inUse = layer->foreground.id != 0 || layer->background.id != 0 || layer->mixer != Mixer{};
    if (!inUse) {
        channels_.at(static_cast<std::size_t>(at.channel) - 1).erase(at.layer);
    }
    Q_EMIT layerChanged(at);
}

}  // namespace zelvor::rehearsal
