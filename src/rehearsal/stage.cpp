#include "rehearsal/stage.h"

#include <set>
#include <utility>

namespace zelvor::rehearsal {

Stage::Stage(int channels, VideoMode mode) : channels_(static_cast<std::size_t>(channels), Channel{mode}) {}

const std::map<int, Layer>& Stage::layers(int channel) const {
    return of(channel).layers;
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

void Stage::swapLayers(LayerAddress one, LayerAddress other, bool withMixers) {
    Layer& first = obtain(one);
    Layer& second = obtain(other);
    std::swap(first, second);
    if (!withMixers) {
        std::swap(first.mixer, second.mixer);
    }
    changed(one);
    if (one != other) {
        changed(other);
    }
    Q_EMIT moved(one);
    Q_EMIT moved(other);
}

void Stage::swapChannels(int one, int other, bool withMixers) {
    std::set<int> numbers;
    for (const int channel : {one, other}) {
        for (const int number : layerNumbers(channel)) {
            numbers.insert(number);
        }
    }
    for (const int number : numbers) {
        swapLayers({one, number}, {other, number}, withMixers);
    }
}

Mixer Stage::mixer(LayerAddress at, When when) const {
    if (when == When::OnCommit) {
        const auto deferred = of(at.channel).deferred.find(at.layer);
        if (deferred != of(at.channel).deferred.end()) {
            return deferred->second;
        }
    }
    const Layer* layer = find(at);
    return layer == nullptr ? Mixer{} : layer->mixer;
}

void Stage::setMixer(LayerAddress at, const Mixer& mixer, When when) {
    if (when == When::OnCommit) {
        obtain(at);  // takes its place among the layers in use
        of(at.channel).deferred[at.layer] = mixer;
        return;
    }
    obtain(at).mixer = mixer;
    changed(at);
}

void Stage::commitMixers(int channel) {
    for (const auto& [number, mixer] : std::exchange(of(channel).deferred, {})) {
        setMixer({channel, number}, mixer);
    }
}

void Stage::resetMixers(int channel) {
    for (const int number : layerNumbers(channel)) {
        setMixer({channel, number}, {});
    }
}

void Stage::setMode(int channel, VideoMode mode) {
    of(channel).mode = mode;
    Q_EMIT modeChanged(channel);
}

bool Stage::addOutput(int channel, const QString& name, const QString& description) {
    auto& outputs = of(channel).outputs;
    if (outputs.size() >= kMaxOutputs && !outputs.contains(name)) {
        return false;
    }
    outputs[name] = description;
    return true;
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
    return of(at.channel).layers[at.layer];
}

// Tells the pages, and lets go of a layer that holds nothing and is shown plainly.
void Stage::changed(LayerAddress at) {
    const Layer* layer = find(at);
    const bool inUse = layer->foreground.id != 0 || layer->background.id != 0 || layer->mixer != Mixer{};
    if (!inUse) {
        of(at.channel).layers.erase(at.layer);
    }
    Q_EMIT layerChanged(at);
}

}  // namespace zelvor::rehearsal
