#include "system/socket_calls.h"

namespace zelvor {

qint64 sendAtOnce(qintptr, const QByteArray&) {
    return 0;
}

bool endSending(qintptr) {
    return false;
}

void endWithDeadPeer(qintptr) {}

void discardOnClose(qintptr) {}

}  // namespace zelvor
