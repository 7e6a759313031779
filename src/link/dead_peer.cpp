#include "link/dead_peer.h"

#if __has_include(<netinet/tcp.h>)
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/socket.h>
#endif

namespace zelvor {

namespace {

template <class Value>
[[maybe_unused]] void setOption(qintptr socket, int level, int option, const Value& value) {
    // What a system refuses it does as it always did.
    setsockopt(static_cast<int>(socket), level, option, &value, sizeof value);
}

}  // namespace

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

void discardOnClose([[maybe_unused]] qintptr socket) {
#if __has_include(<netinet/tcp.h>)
    setOption(socket, SOL_SOCKET, SO_LINGER, linger{1, 0});
#endif
}

}  // namespace zelvor
