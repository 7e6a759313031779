#include "app_feed/live_files.h"

#include <QTime>

using namespace Qt::StringLiterals;

namespace zelvor {

QString LiveFiles::open(SourceKind kind, const QString& recording, const QString& log) {
    kind_ = kind;
    recording_.setFileName(recording);
    log_.setFileName(log);
    if (!recording.isEmpty()) {
        if (!recording_.open(QIODevice::WriteOnly)) return recording + u": "_s + recording_.errorString();
        writeLine(recording_, recordedHeading(kind));
    }
    if (!log.isEmpty() && !log_.open(QIODevice::Append)) return log + u": "_s + log_.errorString();
    return fault_;
}

void LiveFiles::message(qint64 at, const QByteArray& message) {
    record({at, RecordedMessage::What::Message, message});
    writeLog(kind_ == SourceKind::LiveStats ? message : message.toHex(' '));
}

void LiveFiles::event(qint64 at, RecordedMessage::What what, const QString& text) {
    record({at, what, {}});
    writeLog("-- " + text.toUtf8());
}

void LiveFiles::refused(const QString& text) {
    writeLog("-- refused so far: " + text.toUtf8());
}

void LiveFiles::record(const RecordedMessage& message) {
    if (recording_.isOpen()) writeLine(recording_, recordedLine(kind_, message));
}

void LiveFiles::writeLog(const QByteArray& text) {
    if (log_.isOpen()) writeLine(log_, QTime::currentTime().toString(u"HH:mm:ss.zzz").toLatin1() + ' ' + text);
}

void LiveFiles::writeLine(QFile& file, const QByteArray& line) {
    // What a crash leaves is whole: each line goes to the system at once.
    if (file.write(line + '\n') < 0 || !file.flush()) fault_ = file.fileName() + u": "_s + file.errorString();
}

}  // namespace zelvor
