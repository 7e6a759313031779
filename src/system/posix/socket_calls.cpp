#include "system/socket_calls.h"

#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/socket.h>

#include <algorithm>
#include <array>
#include <cerrno>

namespace zelvor {

namespace {

template <class Value>
void setOption(qintptr socket, int level, int option, const Value& value) {
    // What a system refuses it does as it always did.
    setsockopt(static_cast<int>(socket), level, option, &value, sizeof value);
}

}  // namespace

qint64 sendAtOnce([[maybe_unused]] qintptr socket, [[maybe_unused]] const QByteArray& bytes) {
#if defined(MSG_DONTWAIT) && defined(MSG_NOSIGNAL)
    const ssize_t taken = ::send(static_cast<int>(socket), bytes.constData(), static_cast<size_t>(bytes.size()),
                                 MSG_DONTWAIT | MSG_NOSIGNAL);
    if (taken >= 0) return taken;
    constexpr std::array kLeft{EAGAIN, EINTR, EPIPE, ECONNRESET};
    return std::ranges::find(kLeft, errno) == kLeft.end() ? -1 : 0;
#else
    return 0;
#endif
}

bool endSending(qintptr socket) {
    return ::shutdown(static_cast<int>(socket), SHUT_WR) == 0;
}

void endWithDeadPeer([[maybe_unused]] qintptr socket) {
#ifdef TCP_USER_TIMEOUT
    setOption(socket, IPPROTO_TCP, TCP_USER_TIMEOUT, kPeerTimeout);
#endif
#if defined(TCP_KEEPIDLE) && defined(TCP_KEEPINTVL) && defined(TCP_KEEPCNT)
    setOption(socket, SOL_SOCKET, SO_KEEPALIVE, 1);
    setOption(socket, IPPROTO_TCP, TCP_KEEPIDLE, 2);   // seconds
    setOption(socket, IPPROTO_TCP, TCP_KEEPINTVL, 1);  // seconds
    setOption(socket, IPPROTO_TCP, TCP_KEEPCNT, 3);
#endif
}

void discardOnClose(qintptr socket) {
    setOption(socket, SOL_SOCKET, SO_LINGER, linger{1, 0});
}

}  // namespace zelvor
