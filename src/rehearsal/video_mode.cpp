#include "rehearsal/video_mode.h"

#include <algorithm>
#include <iterator>

namespace zelvor::rehearsal {

namespace {

constexpr VideoMode kModes[] = {
    {u"PAL", 576, 25},           {u"NTSC", 486, 29.97},       {u"576p2500", 576, 25},      {u"720p2398", 720, 23.98},
    {u"720p2400", 720, 24},      {u"720p2500", 720, 25},      {u"720p2997", 720, 29.97},   {u"720p3000", 720, 30},
    {u"720p5000", 720, 50},      {u"720p5994", 720, 59.94},   {u"720p6000", 720, 60},      {u"1080i5000", 1080, 25},
    {u"1080i5994", 1080, 29.97}, {u"1080i6000", 1080, 30},    {u"1080p2398", 1080, 23.98}, {u"1080p2400", 1080, 24},
    {u"1080p2500", 1080, 25},    {u"1080p2997", 1080, 29.97}, {u"1080p3000", 1080, 30},    {u"1080p5000", 1080, 50},
    {u"1080p5994", 1080, 59.94}, {u"1080p6000", 1080, 60},    {u"2160p2500", 2160, 25},    {u"2160p2997", 2160, 29.97},
    {u"2160p5000", 2160, 50},    {u"2160p5994", 2160, 59.94}, {u"2160p6000", 2160, 60},
};

}  // namespace

std::optional<VideoMode> videoModeNamed(QStringView name) {
    const auto mode = std::ranges::find_if(
        kModes, [&](const VideoMode& each) { return name.compare(each.name, Qt::CaseInsensitive) == 0; });
    return mode == std::end(kModes) ? std::nullopt : std::optional(*mode);
}

}  // namespace zelvor::rehearsal
