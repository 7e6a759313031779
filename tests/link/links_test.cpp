#include <gtest/gtest.h>

#include "studio.h"
#include "support/full_disk.h"

using namespace Qt::StringLiterals;
using namespace zelvor;
using namespace zelvor::test;

TEST(GraphicsLinks, PutsEachLineOnTheWireAsOneAndRecordsIt) {
    const std::tuple<QString, QByteArray, int> cases[] = {
        {u"CG 1-1 play"_s, "CG 1-1 play\r\n", 0},
        {u"CG 1-1 ADD 1 \"DISPLAY\""_s, "CG 1-1 ADD 1 \"DISPLAY\"\r\n", 50000},
        {u"a\r\nb\n\n\rΆρης 😀\r"_s, "a b \xCE\x86\xCF\x81\xCE\xB7\xCF\x82 \xF0\x9F\x98\x80 \r\n", 0},
        {QString(), "\r\n", 0},
    };
    for (const LinkId id : {LinkId::Main, LinkId::Remote}) {
        Studio studio;
        Server server;
        studio.connectTo(id, server);
        for (const auto& [command, bytes, turns] : cases) {
            server.bytes.clear();
            studio.clock.turns = 0;
            studio.links.sendLine(id, command, {});
            EXPECT_TRUE(waitUntil([&server, size = bytes.size()] { return server.bytes.size() >= size; }));
            EXPECT_EQ(server.bytes, bytes);
            EXPECT_EQ(studio.clock.turns, turns) << command.toStdString();
        }
        EXPECT_EQ(studio.links.history().rowCount(), id == LinkId::Main ? 4 : 0);
    }
}

TEST(GraphicsLinks, LooksAgainAfterThePauseBeforePlay) {
    Studio studio;
    Server server;
    studio.at("chkLOGFILE").setChecked(true);
    studio.connectTo(LinkId::Main, server);
    studio.clock.goesOn = false;
    studio.links.sendLine(LinkId::Main, u"PLAY 1 while closing"_s, {});
    EXPECT_FALSE(studio.logFile().contains("PLAY"));
    studio.clock.goesOn = true;
    studio.clock.whileTurning = [&] { studio.links.link(LinkId::Main).close(); };
    studio.links.sendLine(LinkId::Main, u"PLAY 1 without a link"_s, {});
    EXPECT_TRUE(studio.logFile().endsWith("\r\nConnection Error. STATE:0\r\n"));
    EXPECT_TRUE(waitUntil([&] { return server.peer->state() == QTcpSocket::UnconnectedState; }));
    EXPECT_EQ(server.bytes, "");
}

TEST(GraphicsLinks, SendsInStateOpen) {
    Studio studio;
    auto* socket = studio.links.link(LinkId::Main).findChild<QTcpSocket*>();
    ASSERT_TRUE(socket->bind(QHostAddress::LocalHost, 0));
    EXPECT_EQ(studio.links.state(LinkId::Main), Graphics::kOpen);
    studio.links.sendLine(LinkId::Main, u"CLEAR 1"_s, {});
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(studio.links.history().text(0), u"20:31:07 > CLEAR 1"_s);
}

TEST(GraphicsLinks, LogsEverythingInItsOwnWords) {
    Studio studio;
    Server server;
    studio.links.writeLog(u"before"_s);
    studio.at("chkLOGFILE").setChecked(true);
    studio.links.sendLine(LinkId::Main, u"A"_s, {});
    studio.links.sendLine(LinkId::Remote, u"PLAY"_s, {});
    for (const LinkId id : {LinkId::Main, LinkId::Remote}) studio.connectTo(id, server);
    studio.links.sendLine(LinkId::Main, u"B"_s, {});
    studio.links.sendLine(LinkId::Remote, u"Γ"_s, {});
    studio.links.writeLog(u"-CARDLOG-:two\r\nlines"_s);
    const QByteArray now = generalDateText(studio.clock.now(), QLocale::system()).toUtf8();
    const QByteArray opened = QByteArray(36, '-') + "\r\nLOG start at " + now + "\r\n";
    const QByteArray lines =
        "Connection Error. STATE:0\r\nREMOTE Connection Error. STATE:0\r\nB\r\nREMOTE > Γ\r\n-CARDLOG-:two lines\r\n";
    EXPECT_EQ(studio.logFile(), opened + lines) << "each line is on the disk at once";
    studio.at("chkLOGFILE").setChecked(false);
    studio.at("chkLOGFILE").setChecked(true);
    const QByteArray closed = "LOG stop at " + now + "\r\n" + QByteArray(36, '=') + "\r\n";
    EXPECT_EQ(studio.logFile(), opened + lines + closed + opened) << "the log grows";
    {
        const FullDisk full(static_cast<rlim_t>(studio.logFile().size() + 2));
        for (int i = 0; i < 2; ++i) studio.links.writeLog(u"lost"_s);
    }
    studio.links.writeLog(u"C"_s);
    EXPECT_TRUE(studio.logFile().endsWith("\r\nlo\r\nC\r\n")) << "a line of its own after one that was cut";

    EXPECT_EQ(generalDateText(studio.clock.now(), QLocale(u"en_US"_s)), u"11/21/26 8:31:07 PM"_s);
}

TEST(GraphicsLinks, TellsOfALogThatCannotBeOpened) {
    Studio studio(false);
    studio.at("chkLOGFILE").setChecked(true);
    ASSERT_EQ(studio.told.size(), 1);
    EXPECT_TRUE(studio.told.first().startsWith(u"Error 76\r\nPath not found"_s)) << studio.told.first().toStdString();
    EXPECT_EQ(studio.at("lblLOG").text(), u"cannot be written"_s);
    EXPECT_EQ(studio.at("lblLOG").role(), Control::Role::Bad);
    studio.at("chkLOGFILE").setChecked(false);
    QDir(studio.folder.path()).mkdir(u"MODULES"_s);
    studio.at("chkLOGFILE").setChecked(true);
    EXPECT_EQ(studio.at("lblLOG").text(), u"writing"_s);
    EXPECT_EQ(studio.at("lblLOG").role(), Control::Role::Plain);
}

TEST(GraphicsLinks, ShowsResponsesOfTheMainServerAlone) {
    Studio studio;
    Server main;
    Server remote;
    studio.connectTo(LinkId::Main, main);
    studio.connectTo(LinkId::Remote, remote);
    LineList& responses = studio.links.responses();
    int arrived = 0;
    QObject::connect(&responses, &LineList::rowsInserted, &responses, [&] { ++arrived; });
    for (int i = 1; i <= 10000; ++i) {
        remote.peer->write("202 REMOTE OK\r\n");
        main.peer->write(i == 9999 ? "404 CG FAILED\r\n" : "201 CG OK\r\n");
        ASSERT_TRUE(waitUntil([&] { return arrived == i; }));
    }
    EXPECT_EQ(responses.rowCount(), 500);
    EXPECT_EQ(responses.text(0), u"20:31:07 201 CG OK"_s);
    EXPECT_EQ(responses.text(1), u"20:31:07 404 CG FAILED"_s);
    EXPECT_EQ(studio.links.history().text(499), u"20:31:07 < 201 CG OK"_s);
    EXPECT_TRUE(responses.data(responses.index(1), LineList::kAlarmRole).toBool());
}

// What arrives at once is one line; it stands out when one of the replies in it is a refusal.
TEST(GraphicsLinks, MarksARefusalBehindAnotherReply) {
    Studio studio;
    Server server;
    studio.connectTo(LinkId::Main, server);
    const LineList& responses = studio.links.responses();
    for (const QString& line : {u"CG 1-20 PLAY 1"_s, u"INFO"_s, u"CG 1-20 ADD 1 none 1"_s, u"CG 1-21 STOP 1"_s}) {
        studio.links.sendLine(LinkId::Main, line, {});
    }
    int rows = 0;
    for (const auto& [bytes, shown, marked] :
         {std::tuple("202 CG OK\r\n200 INFO OK\r\n404 x\r\n\r\n", u"202 CG OK200 INFO OK404 x"_s, false),
          std::tuple("202 CG OK\r\n403 CG STOP FAILED\r\n", u"202 CG OK403 CG STOP FAILED"_s, true),
          std::tuple("202 CG OK\r\n", u"202 CG OK"_s, false)}) {
        server.peer->write(bytes);
        ++rows;
        ASSERT_TRUE(waitUntil([&] { return responses.rowCount() == rows; }));
        EXPECT_EQ(responses.text(0), QString(u"20:31:07 "_s + shown));
        EXPECT_EQ(responses.data(responses.index(0), LineList::kAlarmRole).toBool(), marked) << bytes;
    }
}

// What a server that reads is handed at the end, the console's own tests hold.
TEST(GraphicsLinks, GiveUpAServerThatTakesNothing) {
    Studio studio;
    Server server(false);
    studio.connectTo(LinkId::Main, server);
    studio.links.sendLine(LinkId::Main, QString(qsizetype{8} * 1024 * 1024, u'x'), {});
    studio.links.finishSending();
    EXPECT_GT(studio.links.link(LinkId::Main).unsentBytes(), 0);
}

TEST(CasparLink, HasANumberForWhatGoesWrong) {
    Server server;
    QTcpServer gone;
    gone.listen(QHostAddress::LocalHost, 0);
    const QString deadPort = QString::number(gone.serverPort());
    gone.close();
    const QString local = u"127.0.0.1"_s;
    const std::pair<QString, QString> targets[] = {
        {local, deadPort}, {u"no such host"_s, u"5250"_s}, {local, u""_s}, {local, u"65536"_s}, {local, u"abc"_s}};
    for (const auto& [host, port] : targets) {
        CasparLink link;
        link.connectTo(host, port);
        EXPECT_TRUE(waitUntil([&] { return link.state() == LinkState::Error; }))
            << host.toStdString() << ':' << port.toStdString();
        EXPECT_FALSE(link.errorText().isEmpty());
    }

    CasparLink link;
    QList<int> states;
    QObject::connect(&link, &CasparLink::stateChanged, &link, [&](LinkState s) { states += static_cast<int>(s); });
    link.connectTo(local, server.port());
    EXPECT_TRUE(waitUntil([&] { return link.state() == LinkState::Connected && server.peer != nullptr; }));
    server.stop();
    EXPECT_TRUE(waitUntil([&] { return link.findChild<QTcpSocket*>()->state() == QTcpSocket::UnconnectedState; }));
    EXPECT_EQ(states, (QList<int>{4, 6, 7, 8})) << "the close by the server keeps its number";
}
