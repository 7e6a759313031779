#include <gtest/gtest.h>

#include "live/clock_text.h"
#include "live/daktronics_decoder.h"
#include "live/livestats_decoder.h"
#include "live/table_rows.h"
#include "scoreboard_packet.h"

using namespace Qt::StringLiterals;

namespace zelvor::test {
namespace {

const QByteArray kTeams =
    R"({"type":"teams","teams":[)"
    R"({"teamNumber":2,"detail":{"teamName":"Harbour","isHomeCompetitor":1},"players":[{"pno":3,"shirtNumber":"00","familyName":"O'Neil","starter":1}]},)"
    R"({"teamNumber":"1","detail":{"teamName":"North","isHomeCompetitor":"0"},"players":[{"pno":"1","shirtNumber":7,"starter":null}]}]})";
const QByteArray kStatus =
    R"({"type":"status","status":"inprogress","period":{"current":3,"periodType":"REGULAR"},"clock":"09:27:41","clockRunning":1,)"
    R"("scores":[{"teamNumber":1,"score":"51","teamFouls":2},{"teamNumber":2,"score":54}]})";
const QByteArray kShot =
    R"({"type":"action","actionNumber":40,"messageId":80,"teamNumber":2,"pno":3,"actionType":"3pt","clock":"09:10:00","period":3,"success":1,"score1":51,"score2":57})";

struct Listened {
    Refusals refusals;
    LiveStatsDecoder decoder{refusals};

    explicit Listened(const QByteArrayList& lines) {
        for (const QByteArray& line : lines) decoder.take(line, 0);
    }
    int home() const { return decoder.game().teams[1].score.value_or(-1); }
    int away() const { return decoder.game().teams[0].score.value_or(-1); }
    QStringList actions() const {
        QStringList rows;
        const TableRows tables = rowsOf(decoder.game());
        for (const QStringList& more : tables[2]) rows += more;
        return rows;
    }
};

}  // namespace

TEST(LiveStats, TellsTheGame) {
    const Listened heard({kTeams, kStatus, kShot});
    EXPECT_EQ(heard.refusals.text(), u""_s);
    EXPECT_EQ(heard.home(), 57);
    EXPECT_EQ(heard.away(), 51);
    EXPECT_EQ(heard.actions(), QStringList{u"(40, 3, '9:10', 'H', '00', '3pt', null, 1, 57, 51)"_s});
    EXPECT_EQ(heard.decoder.clock().hundredths(1000), 56641) << "runs on";
    EXPECT_EQ(heard.decoder.clock().hundredths(60000), 56741 - 1000) << "but not for ever";
    const TableRows rows = rowsOf(heard.decoder.game());
    EXPECT_TRUE(rows[1].contains(u"side = 'H' and shirt = '00'"_s));
    EXPECT_TRUE(rows[1].first().join(u' ').contains(u"'7'"_s));
    EXPECT_TRUE(rows[1].last().join(u' ').contains(u"'O''Neil', 1, 1"_s));
}

TEST(LiveStats, CorrectsDeletesAndListensAgain) {
    const auto with = [](QByteArray shot, const QByteArray& from, const QByteArray& to) {
        return shot.replace(from, to);
    };
    const QByteArray two = with(with(kShot, "3pt", "2pt").replace(":80", ":81"), "57", "56");
    const QByteArray list = R"({"type":"playbyplay","actions":[)" + kShot + "]}";
    const std::tuple<QByteArrayList, int, qsizetype> cases[]{
        {{kShot, kShot}, 57, 1},                                                 // told twice
        {{kShot, two}, 56, 1},                                                   // corrected
        {{two, kShot}, 56, 1},                                                   // the older version comes last
        {{kShot, with(kShot, ":40,", ":41,"), with(two, "57", "9")}, 57, 2},     // an old action's score is old
        {{kShot, with(two, "\"success\":1", "\"deleted\":1"), kStatus}, 54, 0},  // deleted
        {{kShot, with(kShot, ":40,", ":41,"), list}, 57, 1},                     // deleted while nobody listened
        {{kShot, with(kShot, ":40,", ":41,"), R"({"type":"playbyplay","actions":[7]})"}, 57, 2},  // half a list
        {{kShot, R"({"type":"boxscore","teams":[{"teamNumber":2,"total":{"team":{"sPoints":55}}}]})"}, 55, 1},
        {{kShot, R"({"type":"action","actionNumber":0,"actionType":"clock","subType":"stop","score1":0,"score2":0})"},
         57,
         1},
    };
    for (const auto& [lines, home, actions] : cases) {
        const Listened heard(QByteArrayList{kTeams, kStatus} + lines);
        EXPECT_EQ(heard.home(), home) << lines.join('\n').constData();
        EXPECT_EQ(heard.actions().size(), actions) << lines.join('\n').constData();
    }
}

TEST(LiveStats, CountsWhatItCannotUse) {
    const std::vector<std::pair<QByteArray, QString>> cases{
        {"{\"type\":\"status\",\"clo", u"1 no message"_s},
        {"[1,2]", u"1 no message"_s},
        {R"({"type":"status","clock":{},"status":[],"period":7,"scores":"x","possession":true})", u"4 wrong type"_s},
        {R"({"type":"status","scores":[{"teamNumber":2,"score":"many"},{"teamNumber":2,"score":-3},{"teamNumber":2,"score":1e9}]})",
         u"3 wrong type"_s},
        {R"({"type":"status","scores":[{"teamNumber":9,"score":99},{"score":98}]})", u"2 unknown team"_s},
        {R"({"type":"status","clock":"9:61"})", u"1 wrong clock"_s},
        {R"({"type":"status","clock":"09:55:00"})", u"1 clock gone up"_s},
        {R"({"type":"boxscore","teams":[{"teamNumber":2,"total":{"players":[{"pno":9,"sPoints":9}]}}]})",
         u"1 unknown player"_s},
        {R"({"type":"newest","scores":7})", QString()},
    };
    for (const auto& [line, refused] : cases) {
        const Listened heard({kTeams, kStatus, line});
        EXPECT_EQ(heard.refusals.text(), refused) << line.constData();
        EXPECT_EQ(heard.home(), 54) << line.constData();
    }
    const Listened untold({kStatus, kShot});
    EXPECT_EQ(untold.home(), -1) << "nobody knows who is at home";
    EXPECT_EQ(untold.actions(), QStringList{u"(40, 3, '9:10', null, null, '3pt', null, 1, 51, 57)"_s})
        << "no row is lost";
}

TEST(Daktronics, TellsTheGame) {
    Refusals refusals;
    DaktronicsDecoder decoder(refusals);
    const auto take = [&](const QByteArray& bytes) { decoder.take(bytes, 0); };
    take(scoreboardPacket(141, " 3") + scoreboardPacket(0, " 9:27") + scoreboardPacket(107, "  54  51") +
         scoreboardPacket(200, "14      "));
    const LiveGame& game = decoder.game();
    EXPECT_EQ(refusals.text(), u""_s);
    EXPECT_EQ(game.period, 3);
    EXPECT_EQ(decoder.clock().hundredths(99), 56700);
    EXPECT_EQ(game.teams[0].score, 54);
    EXPECT_EQ(game.teams[1].score, 51);
    EXPECT_EQ(game.shotClock, 14);
    take(scoreboardPacket(0, "59.3 ") + scoreboardPacket(209, "<     >") + scoreboardPacket(235, " 412"));
    EXPECT_EQ(secondsText(*decoder.clock().hundredths(0)), u"0:59"_s);
    EXPECT_EQ(game.possession, 2);
    EXPECT_EQ(game.teams[0].fouls, 4);
    EXPECT_EQ(game.teams[1].fouls, 12);
    take(scoreboardPacket(107, "        "));
    EXPECT_EQ(game.teams[0].score, 54) << "a dark scoreboard is no score";
}

TEST(Daktronics, NeverShowsHalfAScore) {
    const QByteArray all = scoreboardPacket(107, "  99  51");
    const QByteArray first = scoreboardPacket(107, " 1");
    const QByteArray second = scoreboardPacket(109, "00  51");
    const QByteArray other = scoreboardPacket(0, " 9:27");
    QByteArray wrong = second;
    wrong[wrong.size() - 2] = wrong.at(wrong.size() - 2) == '0' ? '1' : '0';
    const std::tuple<QByteArray, int, QString> cases[]{
        {first, 99, {}},
        {first + second, 100, {}},
        {scoreboardPacket(110, "8") + other, 98, {}},
        {first + wrong + other + second, 99, u"1 wrong checksum"_s},
        {first + second.left(8) + second.mid(9) + other, 99, u"1 wrong checksum"_s},
        {first + second.left(9) + all, 99, u"1 packet cut short"_s},
        {first + second.mid(1) + other + second, 99, u"1 bytes outside of a packet"_s},
        {wrong + first + second, 100, u"1 wrong checksum"_s},
        {first + QByteArray("\x16xx\x02\x04zz\x17") + other, 99, u"1 packet malformed"_s},
        {'\x16' + QByteArray(100'000, '7') + other, 99, u"1 packet without end"_s},
    };
    for (const auto& [bytes, score, refused] : cases) {
        Refusals refusals;
        DaktronicsDecoder decoder(refusals);
        decoder.take(all, 0);
        for (const char byte : bytes) decoder.take(QByteArray(1, byte), 0);
        EXPECT_EQ(decoder.game().teams[0].score, score) << bytes.left(60).toPercentEncoding().constData();
        EXPECT_EQ(refusals.text(), refused);
    }
    Refusals refusals;
    DaktronicsDecoder lenient(refusals, false);
    lenient.take(all + first + wrong, 0);
    EXPECT_EQ(lenient.game().teams[0].score, 100);
}

}  // namespace zelvor::test
