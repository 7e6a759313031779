#pragma once

#include <QDateTime>
#include <QObject>
#include <QString>
#include <deque>

namespace zelvor::rehearsal {

// The last lines that came in, the replies that went out, and what happened to the clients.
class Journal : public QObject {
    Q_OBJECT

 public:
    static constexpr std::size_t kMaxLines = 200;
    static constexpr qsizetype kMaxText = 2000;  // characters kept of one line

    enum class Kind { Received, Sent, Note };
    struct Line {
        QTime time;
        Kind kind = Kind::Note;
        QString client;  // "address:port"
        QString text;
    };

    // Keeps the line, shortened to kMaxText; the oldest goes when there are more than kMaxLines.
    void add(Kind kind, const QString& client, const QString& text);

    [[nodiscard]] const std::deque<Line>& lines() const { return lines_; }

 Q_SIGNALS:
    void added(const zelvor::rehearsal::Journal::Line& line);

 private:
    std::deque<Line> lines_;
};

}  // namespace zelvor::rehearsal
