#pragma once

#include <QObject>
#include <map>
#include <vector>

#include "rehearsal/layer.h"

namespace zelvor::rehearsal {

struct LayerAddress {
    int channel = 1;  // 1..channelCount()
    int layer = 0;    // 0..Stage::kMaxLayer
};

// What every channel has on its layers. Commands change it, pages mirror it through its signals.
class Stage : public QObject {
    Q_OBJECT

 public:
    static constexpr int kMaxLayer = 9999;
    static constexpr std::size_t kMaxLayersInUse = 100;  // a channel

    explicit Stage(int channels);

    [[nodiscard]] int channelCount() const { return static_cast<int>(channels_.size()); }
    // The layers of a channel (1..channelCount()) that hold something, from the back to the front.
    [[nodiscard]] const std::map<int, Layer>& layers(int channel) const;
    // False when the channel has no room for one more layer; a layer in use always has room.
    [[nodiscard]] bool hasRoomFor(LayerAddress at) const;

    // Shows SOURCE at once, in place of what was there; PAUSED as LOAD does it. Gives the source its id.
    void show(LayerAddress at, Source source, bool paused = false);
    // Keeps SOURCE ready behind the layer; take() shows it. With nothing ready, take() goes on with what is there.
    void prepare(LayerAddress at, Source source);
    void take(LayerAddress at);
    void setPaused(LayerAddress at, bool paused);

    // Empties the foreground; the background stays.
    void stop(LayerAddress at);
    // Empties the layer; how the mixer shows it stays.
    void clear(LayerAddress at);
    void clearChannel(int channel);

    // True when the layer shows a template. Then call() passes a call on to it (Remove also empties the layer).
    [[nodiscard]] bool showsTemplate(LayerAddress at) const;
    void call(LayerAddress at, const TemplateCall& call);

    // How the mixer shows a layer; a layer never touched has the plain defaults.
    [[nodiscard]] Mixer mixer(LayerAddress at) const;
    void setMixer(LayerAddress at, const Mixer& mixer);
    void resetMixers(int channel);

 Q_SIGNALS:
    // Something about the layer is another one now. The calls made to its template follow as signals of their own.
    void layerChanged(zelvor::rehearsal::LayerAddress at);
    void called(quint64 sourceId, const zelvor::rehearsal::TemplateCall& call);

 private:
    [[nodiscard]] std::vector<int> layerNumbers(int channel) const;
    Layer* find(LayerAddress at);
    [[nodiscard]] const Layer* find(LayerAddress at) const;
    Layer& obtain(LayerAddress at);
    void changed(LayerAddress at);

    std::vector<std::map<int, Layer>> channels_;
    quint64 lastSourceId_ = 0;
};

}  // namespace zelvor::rehearsal
