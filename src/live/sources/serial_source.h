#pragma once

#include <QSerialPort>
#include <QTimer>

#include "live_sources/live_source.h"

namespace zelvor {

// A scoreboard's line on a serial port: 19200 baud, 8 data bits, no parity, 1 stop bit. Nothing is written to it.
class SerialSource : public LiveSource {
    Q_OBJECT

 public:
    // device: "/dev/ttyUSB0"
    explicit SerialSource(const QString& device);

    void start() override;
    [[nodiscard]] QString name() const override;

 private:
    void lose(const QString& why);

    QSerialPort port_{this};
    QTimer again_{this};
};

}  // namespace zelvor
