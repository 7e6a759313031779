#pragma once

#include <QByteArray>

namespace zelvor::test {

// A packet as an All Sport console sends it; offset from 0.
inline QByteArray scoreboardPacket(int offset, const QByteArray& text) {
    const QByteArray body =
        "20000\x01"
        "0042" +
        QByteArray::number(offset).rightJustified(4, '0') + '\x02' + text + '\x04';
    unsigned sum = 0;
    for (const char byte : body) sum += static_cast<unsigned char>(byte);
    return '\x16' + body + QByteArray::number(sum & 0xFFU, 16).toUpper().rightJustified(2, '0') + '\x17';
}

}  // namespace zelvor::test
