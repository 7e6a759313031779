#pragma once

#include <QtGlobal>

namespace zelvor {

// What the operating system is asked to do about a server that has died or whose route has gone, on platforms that can
// do it; elsewhere it takes as long as the system takes.

// The connection ends when what was sent stays unacknowledged for this long, or when an idle one is dead.
constexpr int kPeerTimeout = 5000;  // milliseconds
void endWithDeadPeer(qintptr socket);

// What the connection still holds is thrown away when the socket is closed, instead of being delivered later.
void discardOnClose(qintptr socket);

}  // namespace zelvor
