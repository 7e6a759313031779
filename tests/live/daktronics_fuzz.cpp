#include "live/daktronics_decoder.h"
#include "live/table_rows.h"

// Any bytes, their checksums looked at or not: the score stays a score.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    for (const bool checksums : {true, false}) {
        zelvor::Refusals refusals;
        zelvor::DaktronicsDecoder decoder(refusals, checksums);
        decoder.take(bytes, 0);
        decoder.settle(1000);
        for (const zelvor::LiveTeam& team : decoder.game().teams) {
            if (team.score && (*team.score < 0 || *team.score > 9999)) __builtin_trap();
        }
        static_cast<void>(zelvor::rowsOf(decoder.game()));
    }
    return 0;
}
