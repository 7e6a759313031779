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
        const Control& button = studio.form.at(u"cmdGASPARCONNECT"_s + suffix);
        Control& tab = studio.at("cmdTAB", isMain ? 4 : 3);
        Control& status = studio.at(isMain ? "lblLINKMAIN" : "lblLINKREMOTE");
        auto* timer = studio.console.findChild<QTimer*>(u"tmrWS"_s + suffix);
        const auto tick = [watch = qobject_cast<LinkWatch*>(timer->parent())] { watch->watch(); };
        const auto expectButton = [&](const QString& caption, const QString& tag, bool watched) {
            EXPECT_EQ(button.text(), caption);
            EXPECT_EQ(button.tag(), tag);
            EXPECT_EQ(timer->isActive(), watched);
        };
        studio.form.at(u"txtGASPARIP"_s + suffix).setText(u"127.0.0.1"_s);
        studio.form.at(u"txtGASPARPORT"_s + suffix).setText(server.port());
        const QString target = name + u"127.0.0.1:"_s + server.port() + u' ';
        EXPECT_EQ(status.text(), name + u"not connected"_s);
        expectButton(u"Connect"_s, u"connect"_s, false);

        (studio.console.*press)();
        expectButton(u"Disconnect"_s, u"disconnect"_s, true);
        EXPECT_EQ(button.backColour(), colours::kGreen);
        EXPECT_EQ(studio.links.responses().text(0), isMain ? u"Connected"_s : QString());
        EXPECT_EQ(status.text(), target + u"connecting"_s);

        // The blinking goes on where the connection interrupted it.
        tick();
        EXPECT_EQ(tab.backColour(), colours::kRed);
        tick();
        EXPECT_EQ(tab.backColour(), std::nullopt);
        tick();
        EXPECT_TRUE(studio.isIn(id, 7) && waitUntil([&] { return server.peer != nullptr; }));
        EXPECT_EQ(tab.backColour(), colours::kRed);
        tick();
        EXPECT_EQ(tab.backColour(), std::nullopt);
        EXPECT_EQ(status.text(), target + u"connected"_s);
        server.stop();
        EXPECT_TRUE(studio.isIn(id, 8));
        EXPECT_EQ(status.text(), target + u"lost at 20:31:07"_s);
        tick();
        EXPECT_EQ(tab.backColour(), std::nullopt);
        tick();
        EXPECT_EQ(tab.backColour(), colours::kRed);

        (studio.console.*press)();
        expectButton(u"Connect"_s, u"connect"_s, false);
        EXPECT_EQ(button.backColour(), colours::kGreen);
        EXPECT_EQ(tab.backColour(), std::nullopt);
        EXPECT_EQ(studio.links.state(id), 0);
        EXPECT_EQ(studio.links.responses().text(0), isMain ? u"Disconnected"_s : QString());
        EXPECT_EQ(status.text(), name + u"not connected"_s);
    }
}

TEST(LinkConsole, TriesALostLinkAgainWhileReconnectIsChecked) {
    Studio studio;
    Server server;
    const QString port = server.port();
    Control& status = studio.at("lblLINKMAIN");
    auto* timer = studio.console.findChild<QTimer*>(u"tmrRETRY"_s);
    studio.at("chkRECONNECT").setChecked(true);
    EXPECT_FALSE(timer->isActive()) << "nobody wants a connection yet";
    studio.at("txtGASPARPORT").setText(port);
    studio.console.cmdGASPARCONNECT();
    EXPECT_TRUE(studio.isIn(LinkId::Main, 7) && waitUntil([&] { return server.peer != nullptr; }));
    EXPECT_FALSE(timer->isActive());
    server.stop();
    EXPECT_TRUE(waitUntil([&] { return timer->isActive(); }));
    EXPECT_TRUE(status.text().endsWith(u"lost at 20:31:07, trying again"_s));

    int refused = 0;
    QObject::connect(&studio.links.link(LinkId::Main), &CasparLink::stateChanged, timer,
                     [&](LinkState state) { refused += state == LinkState::Error ? 1 : 0; });
    EXPECT_EQ(timer->interval(), 2000);
    timer->setInterval(20);
    EXPECT_TRUE(waitUntil([&] { return refused >= 3; })) << "tried until it is back";
    EXPECT_TRUE(status.text().endsWith(u"lost at 20:31:07, trying again"_s));
    server.listen(QHostAddress::LocalHost, port.toUShort());
    EXPECT_TRUE(studio.isIn(LinkId::Main, 7));
    EXPECT_FALSE(timer->isActive());

    server.stop();
    EXPECT_TRUE(waitUntil([&] { return timer->isActive(); }));
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
    EXPECT_TRUE(studio.at("lblLINKMAIN").text().endsWith(u"connecting"_s));
    studio.console.findChild<QTimer*>(u"tmrRETRY"_s)->setInterval(LinkWatch::kRetryInterval);
    full.resumeAccepting();
    EXPECT_TRUE(studio.isIn(LinkId::Main, 7));
}

TEST(LinkConsole, PutsPresetAddressesInAndLocksThem) {
    Studio studio;
    Control& list = studio.at("cmbCASPARREMOTELIST");
    Control& address = studio.at("txtGASPARIPREMOTE");
    EXPECT_EQ(list.text(), u"(none)"_s);
    for (int preset = 1; preset <= 3; ++preset) {
        list.setPosition(preset);
        EXPECT_EQ(address.text(), u"192.168.1.10%1"_s.arg(preset));
        EXPECT_FALSE(address.enabled());
    }
    list.setPosition(0);
    EXPECT_EQ(address.text(), u"192.168.1.103"_s);
    EXPECT_TRUE(address.enabled());
}

TEST(LinkConsole, SwitchesBetweenHistoryAndLastTemplate) {
    Studio studio;
    studio.links.showLastTemplate(u"<templateData/>"_s);
    EXPECT_EQ(studio.at("lblLASTXML").text(), u"<templateData/>"_s);
    for (const bool shown : {false, true}) {
        studio.console.cmdLASTXML();
        EXPECT_EQ(studio.at("lstGASPARHISTORY").visible(), shown);
        EXPECT_EQ(studio.at("cmdLASTXML").text(), shown ? u"Show Last XML"_s : u"Show Last CG"_s);
    }
}

TEST(LinkConsole, SendsTheManualLineOnTheMainLinkAndRecallsIt) {
    Studio studio;
    Server main;
    Server remote;
    studio.connectTo(LinkId::Main, main);
    studio.connectTo(LinkId::Remote, remote);
    Control& box = studio.at("txtMANUALCASPAR");
    for (const QString& typed : {u"CG 1-1 ADD 1 'x{@N}' 1"_s, u"VERSION"_s}) {
        box.setText(typed);
        studio.console.cmdMANUALSEND();
    }
    const QByteArray expected = "CG 1-1 ADD 1 \"x5\" 1\r\nVERSION\r\n";
    EXPECT_TRUE(waitUntil([&] { return main.bytes.size() >= expected.size(); }));
    EXPECT_EQ(main.bytes, expected);
    EXPECT_EQ(remote.bytes, "");
    studio.console.recallOlder();
    studio.console.recallOlder();
    EXPECT_EQ(box.text(), u"CG 1-1 ADD 1 'x{@N}' 1"_s) << "as it was typed";
}
