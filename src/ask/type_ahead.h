#pragma once

#include <QString>
#include <chrono>
#include <optional>

namespace zelvor {

// What an operator types to find a row of a list: letters and digits that follow each other within a second belong
// together.
class TypeAhead {
 public:
    static constexpr std::chrono::milliseconds kPause{1000};

    // Takes what was typed at a time of a clock that never goes back; gives all that belongs together.
    QString add(QStringView typed, std::chrono::milliseconds at) {
        if (!last_ || at - *last_ > kPause) text_.clear();
        last_ = at;
        return text_ += typed;
    }

 private:
    QString text_;
    std::optional<std::chrono::milliseconds> last_;
};

}  // namespace zelvor
