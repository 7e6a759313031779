#include "rehearsal/journal.h"

using namespace Qt::StringLiterals;

namespace zelvor::rehearsal {

void Journal::add(Kind kind, const QString& client, const QString& text) {
    Line line{QTime::currentTime(), kind, client, text.left(kMaxText)};
    if (text.size() > kMaxText) {
        line.text += u"… (%1 characters)"_s.arg(text.size());
    }
    lines_.push_back(std::move(line));
    if (lines_.size() > kMaxLines) {
        lines_.pop_front();
    }
    Q_EMIT added(lines_.back());
}

}  // namespace zelvor::rehearsal
