#include "live/daktronics_packets.h"

#include <algorithm>
#include <numeric>
#include <utility>

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

constexpr char kBegin = 0x16;
constexpr char kTextBegins = 0x02;
constexpr char kTextEnds = 0x04;
constexpr char kEnd = 0x17;

}  // namespace

bool DaktronicsPackets::addByte(char byte) {
    if (byte == kBegin) {
        if (inside_) refuse(u"packet cut short"_s);
        inside_ = true;
        outside_ = false;
        return false;
    }
    if (!inside_) {
        // Behind a refused packet its rest is still on its way.
        if (!std::exchange(outside_, true)) refusals_.count(u"bytes outside of a packet"_s);
        return false;
    }
    if (byte == kEnd) {
        inside_ = false;
        const bool whole = readPacket();
        bytes_.clear();
        return whole;
    }
    bytes_.append(byte);
    if (bytes_.size() > kLongest) refuse(u"packet without end"_s);
    return false;
}

bool DaktronicsPackets::readPacket() {
    constexpr qsizetype kOffsetDigits = 4;
    constexpr qsizetype kChecksumDigits = 2;
    const qsizetype begins = bytes_.indexOf(kTextBegins);
    const qsizetype ends = bytes_.size() - kChecksumDigits - 1;
    bool isNumber = false;
    packet_.offset = begins < kOffsetDigits ? 0 : bytes_.mid(begins - kOffsetDigits, kOffsetDigits).toInt(&isNumber);
    if (!isNumber || packet_.offset < 0 || ends <= begins || bytes_.at(ends) != kTextEnds) {
        refusals_.count(u"packet malformed"_s);
        return false;
    }
    packet_.text = bytes_.mid(begins + 1, ends - begins - 1);
    const auto sum = std::accumulate(bytes_.cbegin(), bytes_.cbegin() + ends + 1, 0U,
                                     [](unsigned so, char byte) { return so + static_cast<unsigned char>(byte); });
    if (checksums_ && bytes_.last(kChecksumDigits).toUInt(&isNumber, 16) != (sum & 0xFFU)) {
        refusals_.count(u"wrong checksum"_s);
        return false;
    }
    return true;
}

void DaktronicsPackets::refuse(const QString& word) {
    refusals_.count(word);
    inside_ = false;
    outside_ = true;
    bytes_.clear();
}

}  // namespace zelvor
