#include "rehearsal/mixer.h"

#include <QStringList>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace zelvor::rehearsal {

namespace {

const MixerProperty& propertyNamed(QStringView name) {
    return *std::ranges::find(mixerProperties(), name, &MixerProperty::name);
}

}  // namespace

std::span<const MixerProperty> mixerProperties() {
    static const std::vector<MixerProperty> properties = {
        {u"OPACITY", {1}},
        {u"FILL", {0, 0, 1, 1}},
        {u"CLIP", {0, 0, 1, 1}},
        {u"CROP", {0, 0, 1, 1}},
        {u"ANCHOR", {0, 0}},
        {u"ROTATION", {0}},
        {u"PERSPECTIVE", {0, 0, 1, 0, 1, 1, 0, 1}},
        {u"BRIGHTNESS", {1}},
        {u"SATURATION", {1}},
        {u"CONTRAST", {1}},
        {u"LEVELS", {0, 1, 1, 0, 1}},
        {u"CHROMA", {0, 0, 0, 0, 0, 0, 0, 0, 0}},
        {u"INVERT", {0}},
        {u"KEYER", {0}},
        {u"VOLUME", {1}},
    };
    return properties;
}

std::vector<double> Mixer::values(QStringView name) const {
    const auto found = changed_.find(name.toString());
    return found == changed_.end() ? propertyNamed(name).usual : found->second;
}

void Mixer::set(QStringView name, const std::vector<double>& values) {
    std::vector<double> all = this->values(name);
    std::copy_n(values.begin(), std::min(values.size(), all.size()), all.begin());
    if (all == propertyNamed(name).usual) {
        changed_.erase(name.toString());
    } else {
        changed_[name.toString()] = all;
    }
}

void Mixer::setBlend(const QString& word) {
    static const QStringList kWays = {
        u"normal"_s,       u"lighten"_s,     u"darken"_s,      u"multiply"_s,   u"average"_s,      u"add"_s,
        u"subtract"_s,     u"difference"_s,  u"negation"_s,    u"exclusion"_s,  u"screen"_s,       u"overlay"_s,
        u"soft_light"_s,   u"hard_light"_s,  u"color_dodge"_s, u"color_burn"_s, u"linear_dodge"_s, u"linear_burn"_s,
        u"linear_light"_s, u"vivid_light"_s, u"pin_light"_s,   u"hard_mix"_s,   u"reflect"_s,      u"glow"_s,
        u"phoenix"_s,      u"contrast"_s,    u"saturation"_s,  u"color"_s,      u"luminosity"_s};
    blend_ = kWays.contains(word.toLower()) ? word.toLower() : u"normal"_s;
}

}  // namespace zelvor::rehearsal
