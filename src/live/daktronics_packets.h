#pragma once

#include <QByteArray>

#include "live/refusals.h"

namespace zelvor {

// A stretch of the scoreboard's field table.
struct DaktronicsPacket {
    int offset = 0;  // of its text within the table
    QByteArray text;
};

// Finds the packets in the bytes of an All Sport line. One that is damaged is refused.
class DaktronicsPackets {
 public:
    static constexpr qsizetype kLongest = 512;

    explicit DaktronicsPackets(Refusals& refusals, bool checksums) : refusals_(refusals), checksums_(checksums) {}

    // Calls packet(DaktronicsPacket) for each packet that the piece completes.
    template <class Take>
    void add(const QByteArray& piece, Take&& packet) {
        for (const char byte : piece) {
            if (addByte(byte)) packet(packet_);
        }
    }

 private:
    // True when the byte ends a packet, which is then in packet_.
    bool addByte(char byte);
    bool readPacket();
    void refuse(const QString& word);

    Refusals& refusals_;
    bool checksums_;
    bool inside_ = false;
    bool outside_ = false;  // bytes were met that belong to no packet
    QByteArray bytes_;      // behind the packet's first
    DaktronicsPacket packet_;
};

}  // namespace zelvor
