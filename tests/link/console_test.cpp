#include <gtest/gtest.h>

#include "studio.h"

using namespace Qt::StringLiterals;
using namespace zelvor;
using namespace zelvor::test;

TEST(LinkConsole, ConnectsWatchesAndDisconnectsEachLink) {
    for (const LinkId id : {LinkId::Main, LinkId::Remote}) {
        const bool isMain = id == LinkId::Main;
        const QString suffix = isMain ? QString() : u"REMOTE"_s;
        const QString name = isMain ? u"main "_s : u"remote "_s;
        const auto press = isMain ? &LinkConsole::cmdGASPARCONNECT : &LinkConsole::cmdGASPARCONNECTREMOTE;
        Studio studio;
        Server server;
        const LinkControls& link = isMain ? kMainLinkControls : kRemoteLinkControls;
        const Control& button = studio.form.at(link.connect);
        Control& tab = studio.at("cmdTAB", isMain ? 4 : 3);
        Control& status = studio.at(isMain ? "lblLINKMAIN" : "lblLINKREMOTE");
        auto* timer = studio.console.findChild<QTimer*>(u"tmrWS"_s + suffix);
        const auto tick = [watch = qobject_cast<LinkWatch*>(timer->parent())] { watch->watch(); };
        studio.form.at(link.address).setText(u"127.0.0.1"_s);
        studio.form.at(link.port).setText(server.port());
        const QString target = name + u"127.0.0.1:"_s + server.port() + u' ';
        const auto expectStatus = [&](const QString& text, Control::Role role) {
            EXPECT_EQ(status.text(), text) << qPrintable(status.text());
            EXPECT_EQ(status.role(), role) << qPrintable(text);
        };
        expectStatus(name + u"not connected"_s, Control::Role::Off);
        EXPECT_FALSE(timer->isActive());

        (studio.console.*press)();
        EXPECT_EQ(button.tag(), u"disconnect"_s);
        EXPECT_TRUE(timer->isActive());
        QCoreApplication::sendPostedEvents(&studio.links.responses());
        EXPECT_EQ(studio.links.responses().text(0), isMain ? u"Connected"_s : QString());
        expectStatus(target + u"connecting"_s, Control::Role::Waiting);

        // The blinking goes on where the connection interrupted it.
        tick();
        EXPECT_EQ(tab.backColour(), colours::kRed);
        tick();
        EXPECT_EQ(tab.backColour(), std::nullopt);
        tick();
        EXPECT_TRUE(studio.isIn(id, 7) && waitUntil([&] { return server.peer != nullptr; }));
        EXPECT_EQ(tab.backColour(), colours::kRed);
        tick();
        expectStatus(target + u"connected"_s, Control::Role::Good);
        server.stop();
        EXPECT_TRUE(studio.isIn(id, 8));
        expectStatus(target + u"lost at 20:31:07: the server closed"_s, Control::Role::Bad);
        tick();
        tick();
        EXPECT_EQ(tab.backColour(), colours::kRed);

        (studio.console.*press)();
        EXPECT_EQ(button.tag(), u"connect"_s);
        EXPECT_FALSE(timer->isActive());
        EXPECT_EQ(studio.links.state(id), 0);
        QCoreApplication::sendPostedEvents(&studio.links.responses());
        EXPECT_EQ(studio.links.responses().text(0), isMain ? u"Disconnected"_s : QString());
        expectStatus(name + u"not connected"_s, Control::Role::Off);

        // Refused, it is wanted still: not to be taken for a link that nobody wants.
        (studio.console.*press)();
        EXPECT_TRUE(studio.isIn(id, 9));
        EXPECT_TRUE(status.text().startsWith(target + u"not connected ("_s));
        EXPECT_EQ(status.role(), Control::Role::Bad);
    }
}

TEST(LinkConsole, TriesALostLinkAgainAndCountsTheLinesThatWereLost) {
    Studio studio;
    Server server;
    const Control& status = studio.at("lblLINKMAIN");
    auto* timer = studio.console.findChild<QTimer*>(u"tmrRETRY"_s);
    const auto send = [&](LinkId id) { studio.links.sendLine(id, u"CLEAR 1"_s, {}); };
    QList<int> times;
    QObject::connect(&studio.console.watch(LinkId::Main), &LinkWatch::cameUp, &studio.form, [&](int n) { times += n; });
    send(LinkId::Main);
    send(LinkId::Remote);
    EXPECT_EQ(status.text(), u"main not connected, 1 line lost"_s);
    EXPECT_EQ(status.role(), Control::Role::Bad);
    EXPECT_EQ(studio.at("lblLINKREMOTE").text(), u"remote not connected"_s) << "there is no remote server";

    studio.at("chkRECONNECT").setChecked(true);
    EXPECT_FALSE(timer->isActive()) << "nobody wants a connection yet";
    studio.pressConnect(server);
    EXPECT_TRUE(status.text().endsWith(u" connected"_s));
    EXPECT_FALSE(timer->isActive());
    studio.console.watch(LinkId::Main).showRefusal(u"404 CG ADD FAILED"_s);
    EXPECT_TRUE(status.text().endsWith(u"connected, 404 CG ADD FAILED"_s));
    studio.console.cmdGASPARCONNECT();
    studio.pressConnect(server);
    EXPECT_TRUE(status.text().endsWith(u"connected again at 20:31: what is on air must be fired again"_s))
        << "what a connection that is over refused is no longer told";

    server.stop();
    EXPECT_TRUE(waitUntil([&] { return timer->isActive(); }));
    int refused = 0;
    QObject::connect(&studio.links.link(LinkId::Main), &CasparLink::stateChanged, timer,
                     [&](LinkState state) { refused += state == LinkState::Error ? 1 : 0; });
    timer->setInterval(20);
    EXPECT_TRUE(waitUntil([&] { return refused >= 3; })) << "tried until it is back";
    EXPECT_TRUE(status.text().endsWith(u"lost at 20:31:07: the server closed, trying again"_s));
    for (int i = 0; i < 4; ++i) send(LinkId::Main);
    EXPECT_TRUE(status.text().endsWith(u"lost at 20:31:07: the server closed, 4 lines lost, trying again"_s));
    server.listen(QHostAddress::LocalHost, studio.at("txtGASPARPORT").text().toUShort());
    EXPECT_TRUE(studio.isIn(LinkId::Main, 7));
    EXPECT_FALSE(timer->isActive());
    EXPECT_TRUE(status.text().endsWith(u"connected again at 20:31: what is on air must be fired again"_s));
    EXPECT_EQ(times, (QList<int>{1, 2, 3}));
    server.stop();
    EXPECT_TRUE(waitUntil([&] { return timer->isActive(); }));
    EXPECT_TRUE(status.text().endsWith(u"the server closed, trying again"_s)) << "lines are counted anew";
    studio.console.cmdGASPARCONNECT();
    EXPECT_FALSE(timer->isActive()) << "disconnected by the operator";
}

TEST(LinkConsole, TriesAHostAgainThatDoesNotAnswer) {
    // One connection fills the server's queue; what knocks later gets no answer at all.
    Server full;
    full.pauseAccepting();
    full.close();
    full.setListenBacklogSize(0);
    ASSERT_TRUE(full.listen(QHostAddress::LocalHost, 0));
    full.pauseAccepting();
    QTcpSocket first;
    first.connectToHost(QHostAddress::LocalHost, full.serverPort());
    ASSERT_TRUE(first.waitForConnected());

    Studio studio;
    int tries = 0;
    QObject::connect(&studio.links.link(LinkId::Main), &CasparLink::stateChanged, &studio.links,
                     [&](LinkState state) { tries += state == LinkState::Resolving ? 1 : 0; });
    studio.at("txtGASPARPORT").setText(full.port());
    studio.at("chkRECONNECT").setChecked(true);
    studio.console.findChild<QTimer*>(u"tmrRETRY"_s)->setInterval(20);
    studio.console.cmdGASPARCONNECT();
    EXPECT_TRUE(waitUntil([&] { return tries >= 3; }));
    EXPECT_TRUE(studio.at("lblLINKMAIN").text().endsWith(u"not connected (no answer), trying again"_s));
    studio.console.findChild<QTimer*>(u"tmrRETRY"_s)->setInterval(LinkWatch::kRetryInterval);
    full.resumeAccepting();
    EXPECT_TRUE(studio.isIn(LinkId::Main, 7));
}

TEST(LinkConsole, PutsPresetAddressesInAndLocksThem) {
    Studio studio;
    for (const int preset : {1, 2, 3, 0}) {
        studio.at("cmbCASPARREMOTELIST").setPosition(preset);
        EXPECT_EQ(studio.at("txtGASPARIPREMOTE").text(), u"192.168.1.10%1"_s.arg(preset == 0 ? 3 : preset));
        EXPECT_EQ(studio.at("txtGASPARIPREMOTE").enabled(), preset == 0);
    }
}

TEST(LinkConsole, MarksAPortThatIsNone) {
    Studio studio;
    for (const char* port : {"0", "65536", "-1", "52x", "", "65535", " 1 "}) {
        const bool isPort = QByteArrayView(port).endsWith("5") || QByteArrayView(port) == " 1 ";
        studio.at("txtGASPARPORTREMOTE").setText(QString::fromLatin1(port));
        EXPECT_EQ(studio.at("txtGASPARPORTREMOTE").state().isEmpty(), isPort) << '"' << port << '"';
        EXPECT_TRUE(studio.at("txtGASPARPORT").state().isEmpty());
    }
}

TEST(LinkConsole, ShowsThatAServerDoesNotAnswer) {
    Studio studio;
    Server server;
    const Control& status = studio.at("lblLINKMAIN");
    studio.pressConnect(server);
    const auto statusAfter = [&](qint64 seconds) {
        studio.clock.set(60000);  // somebody sets the wall clock: no matter
        studio.clock.time = studio.clock.time.addSecs(seconds);
        studio.console.watch(LinkId::Main).watch();
        return status.text().section(u' ', 2);
    };
    EXPECT_EQ(statusAfter(60), u"connected"_s) << "nothing was sent";
    studio.links.sendLine(LinkId::Main, u"CG 1-20 STOP 1"_s, {});
    studio.links.sendLine(LinkId::Main, u"CLEAR 1"_s, {});
    EXPECT_EQ(statusAfter(2), u"connected"_s);
    EXPECT_EQ(statusAfter(10), u"connected, no answer for 12 s"_s);
    EXPECT_EQ(status.role(), Control::Role::Waiting);
    const auto answer = [&](const QByteArray& bytes) {
        server.peer->write(bytes);
        waitUntil([&] { return studio.links.responses().text(0).endsWith(QString::fromLatin1(bytes).trimmed()); });
    };
    answer("202 CG OK\r\n");
    EXPECT_EQ(statusAfter(1), u"connected, answers again"_s) << "one answer is still to come";
    EXPECT_EQ(statusAfter(3), u"connected, no answer for 4 s"_s);
    answer("202 CLEAR OK\r\n");
    EXPECT_EQ(statusAfter(1), u"connected, answers again"_s);
    EXPECT_EQ(statusAfter(6), u"connected"_s);
    EXPECT_EQ(status.role(), Control::Role::Good);
}
