#pragma once

#include <QString>
#include <map>
#include <span>
#include <vector>

namespace zelvor::rehearsal {

// One property of the mixer: its name in lines, and the numbers that a layer starts with.
struct MixerProperty {
    QStringView name;
    std::vector<double> usual;
};

// All properties made of numbers; BLEND, a word, is not among them.
std::span<const MixerProperty> mixerProperties();

// How the mixer shows a layer. The page draws OPACITY, FILL and KEYER; all else is only kept.
class Mixer {
 public:
    static constexpr int kMaxFrames = 1500;

    // The numbers of a property ("FILL": x, y, width and height as parts of the picture). NAME must be one of them.
    [[nodiscard]] std::vector<double> values(QStringView name) const;
    // The first of them.
    [[nodiscard]] double value(QStringView name) const { return values(name).front(); }
    // Sets the first numbers of a property; those that VALUES lacks stay.
    void set(QStringView name, const std::vector<double>& values);

    [[nodiscard]] const QString& blend() const { return blend_; }
    // A word that is no way to blend means "normal".
    void setBlend(const QString& word);

    int frames = 0;  // how long the last change takes, at most kMaxFrames

    bool operator==(const Mixer&) const = default;

 private:
    std::map<QString, std::vector<double>> changed_;  // only what is not as usual
    QString blend_ = QStringLiteral("normal");
};

}  // namespace zelvor::rehearsal
