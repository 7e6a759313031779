#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "../data/mariadb_server.h"
#include "../data/postgres_server.h"
#include "base/run_time_error.h"
#include "live/clock_text.h"
#include "live/livestats_decoder.h"
#include "live/recording.h"
#include "live/table_schema.h"
#include "live/table_writer.h"
#include "support/wait.h"

using namespace Qt::StringLiterals;

namespace zelvor::test {
namespace {

constexpr std::chrono::milliseconds kBeat{100};
constexpr std::chrono::seconds kLongEnough{30};

class LiveTables : public testing::TestWithParam<const char*> {
 protected:
    void SetUp() override {
        QByteArray connection = "Driver=SQLite3;Database=live.db";
        if (QByteArrayView(GetParam()) == "MariaDB") {
            server_ = std::make_unique<MariaDbServer>();
            connection = server_->connectionString();
        } else if (QByteArrayView(GetParam()) == "PostgreSQL") {
            if (!PostgresServer::isInstalled()) GTEST_SKIP() << "there is no PostgreSQL";
            postgres_ = std::make_unique<PostgresServer>();
            connection = postgres_->connectionString();
        }
        connection_ = QString::fromLatin1(connection);
        session_.setConnectionString(connection_);
        makeLiveTables(session_, false);
    }
    std::unique_ptr<TableWriter> writer(const QString& owner) {
        return std::make_unique<TableWriter>(connection_, folder_.path(), owner, kBeat);
    }
    // The rows of all tables, a line each, as the game's maker writes them.
    QStringList lines() {
        const QString statistics =
            u"minutes, points, fouls, rebounds_offensive, rebounds_defensive, rebounds, assists, steals, blocks, "
            u"turnovers, fg_made, "
            "fg_tried, three_made, three_tried, ft_made, ft_tried, plus_minus from live_player"_s;
        QStringList found;
        for (
            const QString& sql :
            {u"'game', state, period, clock, shot_clock, home_name, away_name, home_score, away_score, home_fouls, "
             "away_fouls, home_timeouts, away_timeouts, possession from live_game"_s,
             QString(u"'player', side, shirt, first_name, last_name, starter, on_court, "_s + statistics),
             u"'action', number, period, clock, side, shirt, kind, detail, success, home_score, away_score from live_action"_s}) {
            const odbc::Rows rows = session_.run(u"select "_s + sql);
            for (int row = 0; row < rows.rowCount(); ++row) {
                QStringList cells;
                for (int i = 0; i < rows.columns.size(); ++i) cells += rows.cells[row * rows.columns.size() + i].text();
                found += cells.join(u'\t');
            }
        }
        found.sort();
        return found;
    }

    QTemporaryDir folder_;
    std::unique_ptr<MariaDbServer> server_;
    std::unique_ptr<PostgresServer> postgres_;
    QString connection_;
    Session session_{folder_.path()};
};

INSTANTIATE_TEST_SUITE_P(Suite, LiveTables, testing::Values("SQLite", "MariaDB", "PostgreSQL"),
                         [](const auto& database) { return std::string(database.param); });

TEST_P(LiveTables, EndAsTheGameHasEnded) {
    session_.run(u"insert into live_action (number) values (999)"_s);  // another game's
    Refusals refusals;
    LiveStatsDecoder decoder(refusals);
    auto tables = writer(u"test"_s);
    QFile recording(QStringLiteral(GAME_RECORDING));
    ASSERT_TRUE(recording.open(QIODevice::ReadOnly));
    ASSERT_EQ(readHeading(recording.readLine()), SourceKind::LiveStats);
    for (int line = 0; !recording.atEnd(); ++line) {
        const auto recorded = readRecordedLine(recording.readLine());
        ASSERT_TRUE(recorded) << line;
        if (recorded->what != RecordedMessage::What::Message) continue;
        decoder.take(recorded->message, recorded->at);
        LiveGame game = decoder.game();
        game.clock = secondsText(decoder.clock().hundredths(recorded->at).value_or(0));
        tables->write(game);
        // The server goes away in the middle of the game, and comes back.
        if (server_ && line == 700) {
            server_->kill();
            ASSERT_TRUE(waitUntil([&] { return tables->status().state == TableWriter::State::Failed; }));
        }
        if (server_ && line == 1000) server_->start();
    }
    ASSERT_TRUE(tables->finish(kLongEnough)) << tables->status().text.toStdString();
    EXPECT_EQ(refusals.text(), u""_s);

    QFile expected(QStringLiteral(TEST_DATA_DIR "/game.tables"));
    ASSERT_TRUE(expected.open(QIODevice::ReadOnly));
    QStringList wanted = QString::fromUtf8(expected.readAll()).split(u'\n', Qt::SkipEmptyParts);
    wanted.sort();
    EXPECT_EQ(lines().join(u'\n').toStdString(), wanted.join(u'\n').toStdString());
}

TEST_P(LiveTables, BelongToOneFeed) {
    session_.run(u"insert into live_feed (id, owner, beat) values (1, 'of yesterday', 5)"_s);
    LiveGame game;
    game.homeTeam = 1;
    game.team(1).name = u"L'Aquila \\ {d ?} Λιμάνι"_s;
    for (int number : {1, 2}) game.players[{1, number}].shirt = u"7"_s;  // two of them
    auto first = writer(u"first"_s);
    first->write(game);
    ASSERT_TRUE(first->finish(kLongEnough)) << "who does not move any more is taken for dead";
    auto second = writer(u"second"_s);
    second->write({});
    ASSERT_TRUE(waitUntil([&] { return second->status().state == TableWriter::State::Refused; }));
    EXPECT_EQ(second->status().text, u"first"_s);
    game.players[{1, 2}].lastName = u"Vance"_s;
    first->write(game);
    ASSERT_TRUE(first->finish(kLongEnough));
    EXPECT_EQ(lines().size(), 3);
    EXPECT_TRUE(lines().join(u' ').contains(u"L'Aquila  {d ?} Λιμάνι"_s)) << lines().join(u'\n').toStdString();
    first.reset();
    EXPECT_EQ(session_.run(u"select owner from live_feed"_s).rowCount(), 0);

    EXPECT_EQ(makeLiveTables(session_, false).first(), u"live_game: there, kept"_s);
    EXPECT_EQ(lines().size(), 3);
    makeLiveTables(session_, true);
    EXPECT_EQ(lines().size(), 0);
    // All of a transaction, or nothing.
    EXPECT_THROW(
        session_.runTogether({u"insert into live_action (number) values (1)"_s, u"insert into nowhere values (1)"_s}),
        RunTimeError);
    EXPECT_EQ(lines().size(), 0);
}

}  // namespace
}  // namespace zelvor::test
