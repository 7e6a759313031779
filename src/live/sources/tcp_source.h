#pragma once

#include <QTcpSocket>
#include <QTimer>

#include "live/line_buffer.h"
#include "live_sources/live_source.h"

namespace zelvor {

// A LiveStats server, or a scoreboard's line behind a serial server.
class TcpSource : public LiveSource {
    Q_OBJECT

 public:
    // A connection on which nothing has come for this long is taken for dead, milliseconds.
    static constexpr int kSilence = 30'000;

    TcpSource(SourceKind kind, QString host, quint16 port, Refusals& refusals, int silence = kSilence);

    void start() override;
    [[nodiscard]] QString name() const override;

 private:
    void greet();
    void read();
    void reconnect(const QString& why);

    QString host_;
    quint16 port_;
    LineBuffer lines_;
    QTcpSocket socket_{this};
    QTimer again_{this};
    QTimer silence_{this};
};

}  // namespace zelvor
