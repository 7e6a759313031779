#include "link/reply_matcher.h"

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

constexpr int kCodeLength = 3;
constexpr qsizetype kLongestLine = qsizetype{16} * 1024 * 1024;

// 404 of "404 CG ADD FAILED" or "404", 0 when the line begins no reply.
int codeOf(QStringView line) {
    if (line.size() < kCodeLength || (line.size() > kCodeLength && line[kCodeLength] != u' ')) return 0;
    bool isNumber = false;
    const int code = line.left(kCodeLength).toInt(&isNumber);
    return isNumber && code >= 100 && code < 600 ? code : 0;
}

QStringView firstWord(QStringView line) {
    const qsizetype end = line.indexOf(u' ');
    return end < 0 ? line : line.left(end);
}

// What stands behind the first `count` words.
QStringView behindWords(QStringView line, int count) {
    for (; count > 0 && !line.isEmpty(); --count) line = line.mid(firstWord(line).size() + 1);
    return line;
}

// The words behind "REQ id" or "RES id", or all of them.
QStringView withoutRequestId(QStringView line, QStringView mark) {
    return firstWord(line).compare(mark, Qt::CaseInsensitive) == 0 ? behindWords(line, 2) : line;
}

QStringView commandWord(QStringView line) {
    return firstWord(withoutRequestId(line.trimmed(), u"REQ"));
}

}  // namespace

void ReplyMatcher::sent(SentLine line) {
    if (QStringView(line.line).trimmed().isEmpty()) return;
    awaited_.push_back(std::move(line));
    if (awaited_.size() > kMostAwaited) awaited_.pop_front();
}

std::deque<ReplyMatcher::SentLine> ReplyMatcher::forget() {
    begun_.clear();
    next_ = Next::Reply;
    return std::exchange(awaited_, {});
}

std::vector<ReplyMatcher::Answer> ReplyMatcher::read(const QByteArray& bytes) {
    std::vector<Answer> answers;
    qsizetype start = 0;
    const qsizetype searched = begun_.size();
    begun_ += bytes;
    for (qsizetype end = begun_.indexOf('\n', searched); end >= 0; end = begun_.indexOf('\n', start)) {
        QString line = QString::fromUtf8(begun_.mid(start, end - start));
        if (line.endsWith(u'\r')) line.chop(1);
        start = end + 1;
        if (auto answer = takeLine(line)) answers.push_back(std::move(*answer));
    }
    begun_.remove(0, start);
    if (begun_.size() > kLongestLine) begun_.clear();
    return answers;
}

std::optional<ReplyMatcher::Answer> ReplyMatcher::takeLine(const QString& line) {
    switch (std::exchange(next_, Next::Reply)) {
        case Next::List:
            if (!line.isEmpty()) next_ = Next::List;
            return std::nullopt;
        case Next::DataLine:
            return std::nullopt;
        case Next::Echo:
            return answer(badLine_, [&](const SentLine& sent) { return sent.line.trimmed() == line.trimmed(); });
        case Next::Reply:
            return takeReply(line);
    }
    Q_UNREACHABLE();
}

std::optional<ReplyMatcher::Answer> ReplyMatcher::takeReply(const QString& whole) {
    const QString line = withoutRequestId(whole, u"RES").toString();
    const bool pong = firstWord(line) == u"PONG";
    const int code = codeOf(line);
    if (code < 200 && !pong) return std::nullopt;
    if (code == 400) {
        next_ = Next::Echo;
        badLine_ = line;
        return std::nullopt;
    }
    if (code == 200) next_ = Next::List;
    if (code == 201) next_ = Next::DataLine;
    const QStringView word = pong ? u"PING" : firstWord(behindWords(line, 1));
    return answer(line,
                  [&](const SentLine& sent) { return commandWord(sent.line).compare(word, Qt::CaseInsensitive) == 0; });
}

template <class Matches>
std::optional<ReplyMatcher::Answer> ReplyMatcher::answer(const QString& reply, Matches matches) {
    if (awaited_.empty()) return std::nullopt;
    auto found = std::find_if(awaited_.begin(), awaited_.end(), matches);
    if (found == awaited_.end()) found = awaited_.begin();
    Answer answer{std::move(*found), reply};
    awaited_.erase(awaited_.begin(), found + 1);
    return answer;
}

}  // namespace zelvor
