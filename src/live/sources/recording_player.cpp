#include "live_sources/recording_player.h"

#include "live/line_buffer.h"

using namespace Qt::StringLiterals;

namespace zelvor {

std::unique_ptr<RecordingPlayer> RecordingPlayer::open(const QString& path, double speed, Refusals& refusals,
                                                       QString& fault) {
    auto file = std::make_unique<QFile>(path);
    if (!file->open(QIODevice::ReadOnly)) {
        fault = path + u": "_s + file->errorString();
        return nullptr;
    }
    const std::optional<SourceKind> kind = readHeading(file->readLine(LineBuffer::kLongest));
    if (!kind) {
        fault = path + u" is no recording"_s;
        return nullptr;
    }
    return std::unique_ptr<RecordingPlayer>(new RecordingPlayer(*kind, std::move(file), speed, refusals));
}

RecordingPlayer::RecordingPlayer(SourceKind kind, std::unique_ptr<QFile> file, double speed, Refusals& refusals)
    : LiveSource(kind), file_(std::move(file)), speed_(speed), refusals_(refusals) {
    timer_.setSingleShot(true);
    timer_.setTimerType(Qt::PreciseTimer);
    connect(&timer_, &QTimer::timeout, this, &RecordingPlayer::playDue);
}

void RecordingPlayer::start() {
    running_.start();
    if (readNext()) {
        playDue();
    } else {
        Q_EMIT ended();
    }
}

qint64 RecordingPlayer::now() const {
    if (playing_) return *playing_;
    return running_.isValid() ? static_cast<qint64>(static_cast<double>(running_.elapsed()) * speed_) : 0;
}

void RecordingPlayer::playDue() {
    while (next_.at <= now()) {
        playing_ = next_.at;
        play(next_);
        playing_.reset();
        if (!readNext()) {
            Q_EMIT ended();
            return;
        }
    }
    timer_.start(static_cast<int>(static_cast<double>(next_.at - now()) / speed_) + 1);
}

void RecordingPlayer::play(const RecordedMessage& recorded) {
    switch (recorded.what) {
        case RecordedMessage::What::Connected:
            Q_EMIT connected();
            break;
        case RecordedMessage::What::Lost:
            Q_EMIT lost(u"as recorded"_s);
            break;
        case RecordedMessage::What::Message:
            Q_EMIT message(recorded.message);
            break;
    }
}

bool RecordingPlayer::readNext() {
    while (!file_->atEnd()) {
        const QByteArray line = file_->readLine(LineBuffer::kLongest);
        if (const auto read = readRecordedLine(line)) {
            next_ = *read;
            return true;
        }
        if (!line.trimmed().isEmpty()) refusals_.count(u"no recorded message"_s);
    }
    return false;
}

}  // namespace zelvor
