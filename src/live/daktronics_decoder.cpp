#include "live/daktronics_decoder.h"

#include <algorithm>

#include "live/clock_text.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

std::optional<int> wholeNumber(const QByteArray& text) {
    const bool digits = std::ranges::all_of(text, [](char c) { return c >= '0' && c <= '9'; });
    return digits && !text.isEmpty() ? std::optional(text.toInt()) : std::nullopt;
}

// A number that stays while the scoreboard shows nothing in its place.
void keepNumber(std::optional<int>& kept, const QByteArray& text) {
    if (const auto number = wholeNumber(text)) kept = number;
}

void setPossession(LiveGame& game, int team, bool shown) {
    if (shown) {
        game.possession = team;
    } else if (game.possession == team) {
        game.possession = 0;
    }
}

void setBonus(LiveTeam& team, int bonus, bool shown) {
    if (shown) {
        team.bonus = std::max(team.bonus, bonus);
    } else if (team.bonus == bonus) {
        team.bonus = bonus - 1;
    }
}

}  // namespace

using Characters = const QByteArray&;

const std::array<DaktronicsDecoder::Field, DaktronicsDecoder::kFieldCount> DaktronicsDecoder::kFields{{
    {142, 2, [](auto& decoder, Characters text, qint64) { decoder.readPeriod(text); }},
    {1, 5, [](auto& decoder, Characters text, qint64 now) { decoder.readClock(text, now); }},
    {108, 4, [](auto& decoder, Characters text, qint64) { keepNumber(decoder.game_.team(1).score, text); }},
    {112, 4, [](auto& decoder, Characters text, qint64) { keepNumber(decoder.game_.team(2).score, text); }},
    {122, 2, [](auto& decoder, Characters text, qint64) { decoder.game_.team(1).timeouts = wholeNumber(text); }},
    {130, 2, [](auto& decoder, Characters text, qint64) { decoder.game_.team(2).timeouts = wholeNumber(text); }},
    {201, 8,
     [](auto& decoder, Characters text, qint64) {
         const auto shotClock = clockHundredths(QString::fromLatin1(text.startsWith(':') ? text.mid(1) : text));
         decoder.game_.shotClock = shotClock ? std::optional(*shotClock / 100) : std::nullopt;
     }},
    {210, 1, [](auto& decoder, Characters text, qint64) { setPossession(decoder.game_, 1, text == "<"); }},
    {216, 1, [](auto& decoder, Characters text, qint64) { setPossession(decoder.game_, 2, text == ">"); }},
    {222, 1, [](auto& decoder, Characters text, qint64) { setBonus(decoder.game_.team(1), 1, text == "<"); }},
    {223, 1, [](auto& decoder, Characters text, qint64) { setBonus(decoder.game_.team(1), 2, text == "<"); }},
    {229, 1, [](auto& decoder, Characters text, qint64) { setBonus(decoder.game_.team(2), 1, text == ">"); }},
    {230, 1, [](auto& decoder, Characters text, qint64) { setBonus(decoder.game_.team(2), 2, text == ">"); }},
    {236, 2, [](auto& decoder, Characters text, qint64) { decoder.game_.team(1).fouls = wholeNumber(text); }},
    {238, 2, [](auto& decoder, Characters text, qint64) { decoder.game_.team(2).fouls = wholeNumber(text); }},
}};

DaktronicsDecoder::DaktronicsDecoder(Refusals& refusals, bool checksums)
    : LiveDecoder(refusals), packets_(refusals, checksums) {
    game_.homeTeam = 1;
    game_.team(1).told = game_.team(2).told = true;
}

void DaktronicsDecoder::take(const QByteArray& message, qint64 now) {
    packets_.add(message, [&](const DaktronicsPacket& packet) { take(packet, now); });
}

void DaktronicsDecoder::take(const DaktronicsPacket& packet, qint64 now) {
    clock_.heard(now);
    doubtAfterRefusals();
    const int end = std::min<int>(packet.offset + static_cast<int>(packet.text.size()), kTableLength);
    for (int at = packet.offset; at < end; ++at) table_[at] = packet.text.at(at - packet.offset);
    for (std::size_t i = 0; i < kFields.size(); ++i) {
        const int begins = kFields[i].position - 1;
        const int length = kFields[i].length;
        Arrival& arrival = arrivals_[i];
        bool touched = false;
        for (int at = std::max(begins, packet.offset); at < std::min(begins + length, end); ++at) {
            arrival.fresh.set(at - begins);
            touched = true;
        }
        if (static_cast<int>(arrival.fresh.count()) == length) {
            arrival.whole = true;
            readField(i, now);
        } else if (!touched && arrival.fresh.any() && arrival.whole) {
            readField(i, now);
        }
    }
    refusedBefore_ = refusals_.total();
}

void DaktronicsDecoder::doubtAfterRefusals() {
    if (refusals_.total() != refusedBefore_) arrivals_.fill({});
    refusedBefore_ = refusals_.total();
}

void DaktronicsDecoder::settle(qint64 now) {
    doubtAfterRefusals();
    for (std::size_t i = 0; i < kFields.size(); ++i) {
        if (arrivals_[i].fresh.any() && arrivals_[i].whole) readField(i, now);
    }
}

void DaktronicsDecoder::readField(std::size_t index, qint64 now) {
    const Field& field = kFields[index];
    arrivals_[index].fresh.reset();
    field.read(*this, table_.mid(field.position - 1, field.length).trimmed(), now);
}

void DaktronicsDecoder::readClock(const QByteArray& text, qint64 now) {
    if (const auto clock = clockHundredths(QString::fromLatin1(text))) setClock(*clock, false, now);
}

void DaktronicsDecoder::readPeriod(const QByteArray& text) {
    constexpr int kOvertime = 5;
    if (text.startsWith("OT")) {
        game_.period = kOvertime;
    } else {
        keepNumber(game_.period, text);
    }
}

}  // namespace zelvor
