#include "rehearsal/line_buffer.h"

#include <algorithm>
#include <utility>

namespace zelvor::rehearsal {

void LineBuffer::append(const QByteArray& bytes) {
    bytes_.remove(0, start_);
    scanned_ -= start_;
    start_ = 0;
    bytes_.append(bytes);
}

std::optional<LineBuffer::Line> LineBuffer::next() {
    constexpr auto isLineEnd = [](char byte) { return byte == '\r' || byte == '\n'; };
    for (;;) {
        const auto* const end = std::find_if(bytes_.cbegin() + scanned_, bytes_.cend(), isLineEnd);
        scanned_ = end - bytes_.cbegin();
        const bool complete = end != bytes_.cend();
        if (!complete && (skipping_ || scanned_ - start_ > kMaxLine)) {
            return refuseOverlong();
        }
        if (!complete) {
            return std::nullopt;
        }
        const QByteArray line = bytes_.mid(start_, scanned_ - start_);
        start_ = ++scanned_;
        if (std::exchange(skipping_, false) || line.isEmpty()) {
            continue;
        }
        if (line.size() > kMaxLine) {
            return Line{line.left(kShownOfOverlong), true};
        }
        return Line{line};
    }
}

// Lets go of what has arrived of a line that is too long; it is reported once, when the limit is first passed.
std::optional<LineBuffer::Line> LineBuffer::refuseOverlong() {
    const QByteArray head = bytes_.mid(start_, kShownOfOverlong);
    bytes_.clear();
    start_ = scanned_ = 0;
    if (std::exchange(skipping_, true)) {
        return std::nullopt;
    }
    return Line{head, true};
}

}  // namespace zelvor::rehearsal
