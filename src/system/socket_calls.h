#pragma once

#include <QByteArray>

// What the operating system is asked about a TCP connection beyond what Qt offers, where it can do it. The connection
// is named by its QAbstractSocket::socketDescriptor().
namespace zelvor {

// Hands the bytes to the network as they are, past the socket's own buffer, and gives how many it has taken: 0 where it
// takes none now, or the system has no such call. -1 for an error, told in errno; a close by the peer is none, and left
// for the socket to meet.
[[nodiscard]] qint64 sendAtOnce(qintptr socket, const QByteArray& bytes);

// Tells the peer that nothing more comes and still reads what it sends. False where that cannot be.
[[nodiscard]] bool endSending(qintptr socket);

// The connection ends when what was sent stays unacknowledged for this long, or when an idle one is dead; elsewhere it
// takes as long as the system takes.
constexpr int kPeerTimeout = 5000;  // milliseconds
void endWithDeadPeer(qintptr socket);

// What the connection still holds is thrown away when the socket is closed, instead of being delivered later.
void discardOnClose(qintptr socket);

}  // namespace zelvor
