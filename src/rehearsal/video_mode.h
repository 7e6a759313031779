#pragma once

#include <QString>
#include <optional>

namespace zelvor::rehearsal {

// A video mode that a channel can run in.
struct VideoMode {
    QStringView name;  // as lines write it, e.g. "1080i5000"
    int height;        // lines of the picture
    double framesPerSecond;
};

// The mode that NAME means, in either case; nothing when there is none.
std::optional<VideoMode> videoModeNamed(QStringView name);

}  // namespace zelvor::rehearsal
