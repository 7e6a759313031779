#include "remote/osc_packet.h"

// Whatever comes: what is read of it can be written, and read again as the same.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const auto messages = zelvor::readOscPacket({reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)});
    if (!messages) return 0;
    for (const zelvor::OscMessage& message : *messages) {
        const QByteArray bytes = message.bytes();
        const auto again = zelvor::readOscPacket(bytes);
        if (!bytes.isEmpty() && (!again || again->size() != 1)) __builtin_trap();
    }
    return 0;
}
