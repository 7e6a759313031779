#include "as_run/standing_graphics.h"

#include <QStringList>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

// What a line does to the layers that its place begins, "main 1-20" or the channel "main 1-".
struct LayerDeed {
    enum class Kind { None, PutsOn, PlaysOn, TakesOff };
    Kind kind = Kind::None;
    QString place = {};
    bool isChannel = false;

    [[nodiscard]] bool means(const QString& layer) const {
        return isChannel ? layer.startsWith(place) : layer == place;
    }
};

LayerDeed deedOf(LinkId link, const QString& line) {
    using Kind = LayerDeed::Kind;
    constexpr qsizetype kEnough = 200;  // the data behind the first words is not looked at
    QStringList words = line.left(kEnough).toUpper().split(u' ', Qt::SkipEmptyParts);
    if (words.value(0) == u"REQ") words = words.mid(2);
    const QString command = words.value(0);
    const QString verb = command == u"CG" ? words.value(2) : command;
    const QString server = link == LinkId::Main ? u"main "_s : u"remote "_s;
    const QString place = server + words.value(1);
    // A page is built anew by each ADD: what was there before has gone. One that waits for its PLAY stands from then
    // on.
    if (verb == u"ADD") return {words.value(5) == u"0" ? Kind::TakesOff : Kind::PutsOn, place};
    if (verb == u"PLAY") return {command == u"CG" ? Kind::PlaysOn : Kind::PutsOn, place};
    if (verb == u"STOP" || verb == u"REMOVE") return {Kind::TakesOff, place};
    if (verb != u"CLEAR") return {};
    if (words.value(1) == u"ALL") return {Kind::TakesOff, server, true};
    const bool isLayer = words.value(1).contains(u'-');
    return {Kind::TakesOff, isLayer ? place : QString(place + u'-'), !isLayer};
}

}  // namespace

std::vector<StandingGraphics::Gone> StandingGraphics::sent(LinkId link, const QString& line, qint64 run, qint64 at) {
    using Kind = LayerDeed::Kind;
    const LayerDeed deed = deedOf(link, line);
    if (deed.kind == Kind::None || (deed.kind == Kind::PlaysOn && graphics_.contains(deed.place))) return {};
    std::vector<Gone> gone;
    std::erase_if(graphics_, [&](const auto& entry) {
        const auto& [layer, graphic] = entry;
        if (!deed.means(layer)) return false;
        gone.push_back({graphic.run, at - graphic.since});
        return true;
    });
    if (deed.kind != Kind::TakesOff) graphics_[deed.place] = {run, at};
    // A run with another graphic still there has not left; of several layers the longest counts.
    std::erase_if(gone, [&](const Gone& each) { return each.run == 0 || stands(each.run); });
    std::ranges::sort(gone,
                      [](const Gone& a, const Gone& b) { return a.run != b.run ? a.run < b.run : a.stood > b.stood; });
    const auto again =
        std::unique(gone.begin(), gone.end(), [](const Gone& a, const Gone& b) { return a.run == b.run; });
    gone.erase(again, gone.end());
    return gone;
}

void StandingGraphics::refused(LinkId link, const QString& line, qint64 run) {
    const LayerDeed deed = deedOf(link, line);
    const auto found = graphics_.find(deed.place);
    const bool wasPutOn = deed.kind == LayerDeed::Kind::PutsOn || deed.kind == LayerDeed::Kind::PlaysOn;
    if (wasPutOn && found != graphics_.end() && found->second.run == run) graphics_.erase(found);
}

bool StandingGraphics::stands(qint64 run) const {
    return std::ranges::any_of(graphics_, [&](const auto& entry) { return entry.second.run == run; });
}

}  // namespace zelvor
