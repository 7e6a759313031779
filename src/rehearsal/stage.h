#pragma once

#include <QObject>
#include <map>
#include <vector>

#include "rehearsal/layer.h"
#include "rehearsal/video_mode.h"

namespace zelvor::rehearsal {

struct LayerAddress {
    int channel = 1;  // 1..channelCount()
    int layer = 0;    // 0 and up

    auto operator<=>(const LayerAddress&) const = default;
};

// What every channel has on its layers. Commands change it, pages mirror it through its signals.
class Stage : public QObject {
    Q_OBJECT

 public:
    static constexpr std::size_t kMaxLayersInUse = 100;  // a channel

    static constexpr std::size_t kMaxOutputs = 100;  // a channel
    static constexpr QStringView kUsualMode = u"1080i5000";

    // All channels start in MODE.
    explicit Stage(int channels, VideoMode mode = *videoModeNamed(kUsualMode));

    [[nodiscard]] int channelCount() const { return static_cast<int>(channels_.size()); }
    [[nodiscard]] bool hasChannel(int channel) const { return channel >= 1 && channel <= channelCount(); }
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
    // Each shows what the other showed; WITHMIXERS also as the other showed it.
    void swapLayers(LayerAddress one, LayerAddress other, bool withMixers);
    void swapChannels(int one, int other, bool withMixers);

    // True when the layer shows a template. Then call() passes a call on to it (Remove also empties the layer).
    [[nodiscard]] bool showsTemplate(LayerAddress at) const;
    void call(LayerAddress at, const TemplateCall& call);

    // How the mixer shows a layer, or will show it after commitMixers(); a layer never touched has the plain defaults.
    enum class When { Now, OnCommit };
    [[nodiscard]] Mixer mixer(LayerAddress at, When when = When::Now) const;
    void setMixer(LayerAddress at, const Mixer& mixer, When when = When::Now);
    void commitMixers(int channel);
    void resetMixers(int channel);

    [[nodiscard]] double masterVolume(int channel) const { return of(channel).masterVolume; }
    void setMasterVolume(int channel, double volume) { of(channel).masterVolume = volume; }

    [[nodiscard]] const VideoMode& mode(int channel) const { return of(channel).mode; }
    void setMode(int channel, VideoMode mode);

    // The outputs of a channel by their names; one of the same name is replaced. False when there is no room.
    [[nodiscard]] const std::map<QString, QString>& outputs(int channel) const { return of(channel).outputs; }
    bool addOutput(int channel, const QString& name, const QString& description);
    // False when there is none of that name.
    bool removeOutput(int channel, const QString& name) { return of(channel).outputs.erase(name) > 0; }

 Q_SIGNALS:
    void modeChanged(int channel);
    // Something about the layer is another one now. The calls made to its template follow as signals of their own.
    void layerChanged(zelvor::rehearsal::LayerAddress at);
    // What the layer shows now stood on another layer before.
    void moved(zelvor::rehearsal::LayerAddress at);
    void called(quint64 sourceId, const zelvor::rehearsal::TemplateCall& call);

 private:
    struct Channel {
        VideoMode mode;
        std::map<int, Layer> layers = {};
        std::map<int, Mixer> deferred = {};
        double masterVolume = 1;
        std::map<QString, QString> outputs = {};
    };

    [[nodiscard]] const Channel& of(int channel) const { return channels_.at(static_cast<std::size_t>(channel) - 1); }
    [[nodiscard]] Channel& of(int channel) { return channels_.at(static_cast<std::size_t>(channel) - 1); }
    [[nodiscard]] std::vector<int> layerNumbers(int channel) const;
    Layer* find(LayerAddress at);
    [[nodiscard]] const Layer* find(LayerAddress at) const;
    Layer& obtain(LayerAddress at);
    void changed(LayerAddress at);

    std::vector<Channel> channels_;
    quint64 lastSourceId_ = 0;
};

}  // namespace zelvor::rehearsal
