#pragma once

#include <QElapsedTimer>
#include <QObject>

#include "live/recording.h"

namespace zelvor {

// Where live data comes from. It connects by itself, and again after it was lost.
class LiveSource : public QObject {
    Q_OBJECT

 public:
    // The pause before it connects again, milliseconds.
    static constexpr int kPauseBeforeAgain = 2000;

    explicit LiveSource(SourceKind kind) : kind_(kind) { since_.start(); }

    virtual void start() = 0;
    // "LiveStats 10.0.0.5:7677"
    [[nodiscard]] virtual QString name() const = 0;
    // The source's own time in milliseconds: of a recording played faster it runs faster.
    [[nodiscard]] virtual qint64 now() const { return since_.elapsed(); }
    [[nodiscard]] SourceKind kind() const { return kind_; }

 Q_SIGNALS:
    // A whole message of LiveStats; a piece of a scoreboard's bytes.
    void message(const QByteArray& message);
    void connected();
    // why: in words.
    void lost(const QString& why);
    // Nothing will come any more.
    void ended();

 private:
    SourceKind kind_;
    QElapsedTimer since_;
};

}  // namespace zelvor
