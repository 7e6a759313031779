#pragma once

#include <QFile>
#include <QTimer>
#include <memory>

#include "live/refusals.h"
#include "live_sources/live_source.h"

namespace zelvor {

// Plays a recording again, at a speed of one's choice.
class RecordingPlayer : public LiveSource {
    Q_OBJECT

 public:
    // nullptr when the file cannot be read or is no recording; `fault` then says so.
    static std::unique_ptr<RecordingPlayer> open(const QString& path, double speed, Refusals& refusals, QString& fault);

    void start() override;
    [[nodiscard]] QString name() const override { return file_->fileName(); }
    [[nodiscard]] qint64 now() const override;

 private:
    RecordingPlayer(SourceKind kind, std::unique_ptr<QFile> file, double speed, Refusals& refusals);
    void playDue();
    void play(const RecordedMessage& message);
    // False at the end of the file.
    bool readNext();

    std::unique_ptr<QFile> file_;
    double speed_;
    Refusals& refusals_;
    QElapsedTimer running_;
    std::optional<qint64> playing_;  // when the message that is being played came
    RecordedMessage next_;
    QTimer timer_{this};
};

}  // namespace zelvor
