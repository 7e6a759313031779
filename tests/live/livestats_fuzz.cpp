#include "live/livestats_decoder.h"
#include "live/table_rows.h"

// Whatever comes behind a game that is known: the score stays a score, and rows can be made of the game.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    zelvor::Refusals refusals;
    zelvor::LiveStatsDecoder decoder(refusals);
    decoder.take(
        R"({"type":"teams","teams":[{"teamNumber":1,"players":[{"pno":1,"shirtNumber":"7"}]},{"teamNumber":2}]})", 0);
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    qint64 now = 0;
    for (const QByteArray& line : bytes.split('\n')) decoder.take(line, now += 1000);
    for (const zelvor::LiveTeam& team : decoder.game().teams) {
        if (team.score && (*team.score < 0 || *team.score > 999)) __builtin_trap();
    }
    const zelvor::TableRows rows = zelvor::rowsOf(decoder.game());
    if (rows[2].size() != decoder.game().actions.size()) __builtin_trap();
    static_cast<void>(zelvor::statementsFor(std::nullopt, rows));
    return 0;
}
