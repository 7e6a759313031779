#pragma once

#include <bitset>

#include "live/daktronics_packets.h"
#include "live/live_decoder.h"

namespace zelvor {

// Reads the data line of a Daktronics All Sport console. Of basketball's field table it knows what a score bug shows;
// the home team is number 1.
//
// A field that comes in two pieces is taken when both are there, or when the packet behind the first has none of it.
// After a damaged packet a field is only taken when it has come through whole: half of a score is no score.
class DaktronicsDecoder : public LiveDecoder {
 public:
    // checksums: whether a packet with a wrong one is refused.
    explicit DaktronicsDecoder(Refusals& refusals, bool checksums = true);

    void take(const QByteArray& message, qint64 now) override;
    void settle(qint64 now) override;

 private:
    static constexpr int kTableLength = 240;
    struct Field {
        int position;  // in the table, from 1
        int length;
        void (*read)(DaktronicsDecoder& decoder, const QByteArray& text, qint64 now);
    };
    static constexpr std::size_t kFieldCount = 15;
    static const std::array<Field, kFieldCount> kFields;
    struct Arrival {
        std::bitset<8> fresh;  // the characters that have come since the field was read last
        bool whole = false;    // nothing was lost since it last came through whole
    };

    void take(const DaktronicsPacket& packet, qint64 now);
    // A packet may be missing: what has come in part is dropped.
    void doubtAfterRefusals();
    void readField(std::size_t index, qint64 now);
    void readClock(const QByteArray& text, qint64 now);
    void readPeriod(const QByteArray& text);

    DaktronicsPackets packets_;
    QByteArray table_ = QByteArray(kTableLength, ' ');
    std::array<Arrival, kFieldCount> arrivals_;
    int refusedBefore_ = 0;  // of all refusals, those met up to the last packet
};

}  // namespace zelvor
