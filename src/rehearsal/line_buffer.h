#pragma once

#include <QByteArray>
#include <optional>

namespace zelvor::rehearsal {

// Collects the bytes of one client and gives them back a line at a time. CR and LF each end a line; empty lines are
// skipped. A line longer than kMaxLine is given back cut to kShownOfOverlong bytes and marked, its rest is swallowed.
class LineBuffer {
 public:
    static constexpr qsizetype kMaxLine = qsizetype{4} << 20;
    static constexpr qsizetype kShownOfOverlong = 200;

    struct Line {
        QByteArray bytes;
        bool overlong = false;
    };

    void append(const QByteArray& bytes);

    // The next whole line, or nothing while the last one is still incomplete.
    std::optional<Line> next();

 private:
    std::optional<Line> refuseOverlong();

    QByteArray bytes_;
    qsizetype start_ = 0;    // where the next line begins
    qsizetype scanned_ = 0;  // no line end before here
    bool skipping_ = false;  // inside the rest of a refused line
};

}  // namespace zelvor::rehearsal
