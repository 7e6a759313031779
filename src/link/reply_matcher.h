#pragma once

#include <QByteArray>
#include <QString>
#include <deque>
#include <optional>
#include <vector>

#include "base/asker.h"

namespace zelvor {

// Whether a reply is one of the 400 and 500 ranges.
inline bool tellsOfError(QStringView reply) {
    return reply.startsWith(u'4') || reply.startsWith(u'5');
}

// Finds the line that each reply of a server belongs to. Replies come in the order of the lines and name the command
// word; a line that a server leaves without a reply is passed over by the next reply that is not its own.
class ReplyMatcher {
 public:
    // With more lines than this without a reply the oldest are given up.
    static constexpr std::size_t kMostAwaited = 5000;

    struct SentLine {
        QString line;
        Asker asker;
        qint64 at = 0;      // steady milliseconds
        qint64 number = 0;  // of all lines of both links, counted from 1
    };
    struct Answer {
        SentLine to;
        QString reply;  // its first line: "404 CG ADD FAILED"
        [[nodiscard]] bool refused() const { return tellsOfError(reply); }
    };

    void sent(SentLine line);
    // What the server has sent, in whatever pieces; the answers that are complete with it, in order.
    std::vector<Answer> read(const QByteArray& bytes);
    // For a new connection; gives the lines that were still without a reply.
    std::deque<SentLine> forget();

    [[nodiscard]] const std::deque<SentLine>& awaited() const { return awaited_; }

 private:
    enum class Next { Reply, DataLine, Echo, List };

    std::optional<Answer> takeLine(const QString& line);
    std::optional<Answer> takeReply(const QString& whole);
    // The first awaited line for which matches(line) holds, or else the first of all.
    template <class Matches>
    std::optional<Answer> answer(const QString& reply, Matches matches);

    std::deque<SentLine> awaited_;
    QByteArray begun_;  // the line whose end has not come yet
    Next next_ = Next::Reply;
    QString badLine_;  // the reply whose echo comes next
};

}  // namespace zelvor
