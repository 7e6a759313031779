#pragma once

#include <QByteArray>
#include <optional>

namespace zelvor {

enum class SourceKind { LiveStats, Daktronics };

// A line of a recording: a message with the time at which it came, or that the source came or went.
struct RecordedMessage {
    enum class What { Message, Connected, Lost };
    qint64 at = 0;  // milliseconds since the recording began
    What what = What::Message;
    QByteArray message;
};

// A recording is a text file. The first line says of what, {"recording":"livestats"}; then a line each:
// {"at":12.345,"message":{...}}, {"at":12.4,"bytes":"160102..."}, {"at":13,"event":"lost"}; what was no JSON object
// stands as {"at":14,"text":"..."}.
QByteArray recordedHeading(SourceKind kind);
QByteArray recordedLine(SourceKind kind, const RecordedMessage& message);

// nullopt for a line that is none.
std::optional<SourceKind> readHeading(const QByteArray& line);
std::optional<RecordedMessage> readRecordedLine(const QByteArray& line);

}  // namespace zelvor
