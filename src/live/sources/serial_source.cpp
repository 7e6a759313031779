#include "live_sources/serial_source.h"

using namespace Qt::StringLiterals;

namespace zelvor {

SerialSource::SerialSource(const QString& device) : LiveSource(SourceKind::Daktronics) {
    port_.setPortName(device);
    port_.setBaudRate(QSerialPort::Baud19200);
    again_.setSingleShot(true);
    again_.setInterval(kPauseBeforeAgain);
    connect(&again_, &QTimer::timeout, this, &SerialSource::start);
    connect(&port_, &QSerialPort::readyRead, this, [this] { Q_EMIT message(port_.readAll()); });
    // Queued: a port must not be closed while it says that it failed.
    connect(
        &port_, &QSerialPort::errorOccurred, this,
        [this](QSerialPort::SerialPortError error) {
            if (error == QSerialPort::ResourceError) lose(u"pulled out"_s);
        },
        Qt::QueuedConnection);
}

void SerialSource::start() {
    if (port_.open(QIODevice::ReadOnly)) {
        Q_EMIT connected();
    } else {
        lose(port_.errorString());
    }
}

QString SerialSource::name() const {
    return u"Daktronics "_s + port_.portName();
}

void SerialSource::lose(const QString& why) {
    if (again_.isActive()) return;
    again_.start();
    port_.close();
    Q_EMIT lost(why);
}

}  // namespace zelvor
