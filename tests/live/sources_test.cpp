#include <gtest/gtest.h>
#include <pty.h>
#include <termios.h>
#include <unistd.h>

#include <QTcpServer>
#include <QTemporaryDir>

#include "app_feed/console_lock.h"
#include "app_feed/feed_command.h"
#include "app_feed/live_feed.h"
#include "live/daktronics_decoder.h"
#include "live_sources/recording_player.h"
#include "live_sources/serial_source.h"
#include "live_sources/tcp_source.h"
#include "scoreboard_packet.h"
#include "support/receiver.h"
#include "support/told.h"
#include "support/wait.h"

using namespace Qt::StringLiterals;

namespace zelvor::test {
TEST(TcpSource, ConnectsAgainAndAsksAnew) {
    QTcpServer server;
    ASSERT_TRUE(server.listen(QHostAddress::LocalHost));
    Refusals refusals;
    TcpSource source(SourceKind::LiveStats, u"127.0.0.1"_s, server.serverPort(), refusals, 1500);
    QByteArrayList heard;
    int lost = 0;
    QObject::connect(&source, &LiveSource::message, &server, [&](const QByteArray& line) { heard += line; });
    QObject::connect(&source, &LiveSource::lost, &server, [&] { ++lost; });
    source.start();
    const auto next = [&] {
        EXPECT_TRUE(waitUntil([&] { return server.hasPendingConnections(); }));
        QTcpSocket* peer = server.nextPendingConnection();
        EXPECT_TRUE(waitUntil([&] { return peer->canReadLine(); }));
        EXPECT_TRUE(peer->readLine().startsWith(R"({"type":"parameters")"));
        return peer;
    };
    QTcpSocket* peer = next();
    peer->write("one\r\ntw");
    EXPECT_TRUE(waitUntil([&] { return heard.size() == 1; }));
    peer->write("o\n\r\nhalf");
    EXPECT_TRUE(waitUntil([&] { return lost == 1; })) << "half a line, and silence";
    EXPECT_EQ(refusals.text(), u"1 half a line"_s);
    peer = next();
    peer->write("three\n");
    EXPECT_TRUE(waitUntil([&] { return heard.size() == 3; }));
    // Not by the socket, on which a busy machine would fall silent over so much.
    LineBuffer lines(refusals);
    for (const QByteArray& piece : {QByteArray(LineBuffer::kLongest + 100, 'x'), QByteArray("its end\nfour\n")})
        lines.add(piece, [&](const QByteArray& line) { heard += line; });
    EXPECT_EQ(heard, (QByteArrayList{"one", "two", "three", "four"}));
    EXPECT_EQ(refusals.text(), u"1 half a line, 1 line too long"_s);
}

TEST(SerialSource, BringsTheScoreboardToTheConsole) {
    int line = -1;
    int device = -1;
    std::array<char, 64> name{};
    ASSERT_EQ(openpty(&line, &device, name.data(), nullptr, nullptr), 0);
    QTemporaryDir folder;
    Refusals refusals;
    LiveFiles files;
    ASSERT_EQ(files.open(SourceKind::Daktronics, folder.filePath(u"r.jsonl"_s), {}), QString());
    Receiver console;
    SerialSource source(QString::fromLatin1(name.data()));
    DaktronicsDecoder decoder(refusals);
    LiveFeed feed(source, decoder, refusals, files, nullptr, QHostAddress::LocalHost, console.localPort());
    int lost = 0;
    QObject::connect(&source, &LiveSource::lost, &console, [&] { ++lost; });
    feed.start();
    ASSERT_TRUE(waitUntil([&] { return feed.statusLine().contains(u"connected"_s); }));
    termios settings{};
    ASSERT_EQ(tcgetattr(device, &settings), 0);
    EXPECT_EQ(cfgetispeed(&settings), static_cast<speed_t>(B19200));
    for (const char* clock : {"10:00", " 9:59", " 9:59", "59.3 ", "59.1 ", "58.9 "}) {
        const QByteArray packet = scoreboardPacket(0, clock) + scoreboardPacket(107, "  54  51");
        ASSERT_EQ(write(line, packet.constData(), packet.size()), packet.size());
        const QDeadlineTimer pause(60);
        waitUntil([&] { return pause.hasExpired(); });
    }
    const auto heard = [&] { return QString(u' ' + console.heard.join(u' ')).remove(u" pause"_s); };
    EXPECT_TRUE(waitUntil([&] { return heard() == u" t10:00t t9:59t t0:59t t0:58t"_s; })) << heard().toStdString();
    EXPECT_TRUE(feed.statusLine().contains(u"0:58 54:51"_s)) << feed.statusLine().toStdString();
    close(line);
    close(device);
    EXPECT_TRUE(waitUntil([&] { return lost > 0; })) << "pulled out";

    // What was recorded says the same again.
    QString fault;
    Refusals none;
    const auto player = RecordingPlayer::open(folder.filePath(u"r.jsonl"_s), 1000, none, fault);
    ASSERT_TRUE(player) << fault.toStdString();
    DaktronicsDecoder again(none);
    bool ended = false;
    QObject::connect(player.get(), &LiveSource::message, &console,
                     [&](const QByteArray& bytes) { again.take(bytes, 0); });
    QObject::connect(player.get(), &LiveSource::ended, &console, [&] { ended = true; });
    player->start();
    EXPECT_TRUE(waitUntil([&] { return ended; }));
    EXPECT_EQ(again.game().teams[0].score, 54);
    EXPECT_EQ(again.clock().hundredths(0), 5890);
}

TEST(Feed, RefusesWhatCannotBe) {
    const QHostAddress host(QHostAddress::LocalHost);
    ConsoleLock held(host, 7);
    QString holder;
    ASSERT_TRUE(held.take(holder));
    const std::vector<std::pair<QString, QString>> cases{
        {u"--source livestats:nowhere --to 127.0.0.1:9"_s, u"--source takes livestats:HOST:PORT"_s},
        {u"--source no.jsonl --to 127.0.0.1:9"_s, u"no.jsonl: No such file"_s},
        {u"--source livestats:127.0.0.1:9 --to 127.0.0.1:7"_s, u"another feed sends to 127.0.0.1:7: process"_s},
        {u"--to 127.0.0.1:7"_s, u"another feed sends to 127.0.0.1:7: process"_s},
        {u"--source x --from 9:00"_s, u"--from belongs to a clock without --source"_s},
        {u"--into 1"_s, u"--into needs --source or --make-tables"_s},
        {u"--source x --into one"_s, u"--into takes a number from 0 to 32767, not one"_s},
        {u"--make-tables --into 1"_s, u"PACKS.TXT"_s},
    };
    for (const auto& [arguments, fault] : cases) {
        const Told told(runFeed, arguments.split(u' '));
        EXPECT_NE(told.status, 0);
        EXPECT_TRUE(told.err.contains(fault)) << qPrintable(arguments + u": "_s + told.err);
    }
}

}  // namespace zelvor::test
