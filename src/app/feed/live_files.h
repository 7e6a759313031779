#pragma once

#include <QFile>
#include <optional>

#include "live/recording.h"

namespace zelvor {

// The files that a live feed keeps of what it hears: a recording to play again, and a log for people.
class LiveFiles {
 public:
    // Empty names: none. The recording is begun anew, the log goes on. What is wrong with a file, in words; empty when
    // all is well.
    QString open(SourceKind kind, const QString& recording, const QString& log);

    // at: milliseconds since the feed began.
    void message(qint64 at, const QByteArray& message);
    void event(qint64 at, RecordedMessage::What what, const QString& text);
    void refused(const QString& text);

    // What went wrong in writing, in words; empty while all is well.
    [[nodiscard]] const QString& fault() const { return fault_; }

 private:
    void record(const RecordedMessage& message);
    void writeLog(const QByteArray& text);
    void writeLine(QFile& file, const QByteArray& line);

    SourceKind kind_ = SourceKind::LiveStats;
    QFile recording_;
    QFile log_;
    QString fault_;
};

}  // namespace zelvor
