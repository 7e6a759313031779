#pragma once

#include <QNetworkDatagram>
#include <QStringList>
#include <QUdpSocket>

namespace zelvor::test {

// Hears the datagrams that are sent to it.
struct Receiver : QUdpSocket {
    Receiver() {
        connect(this, &QUdpSocket::readyRead, this, [this] {
            while (hasPendingDatagrams()) heard += QString::fromLatin1(receiveDatagram().data());
        });
        bind(QHostAddress::LocalHost, 0);
    }

    QStringList heard;
};

}  // namespace zelvor::test
