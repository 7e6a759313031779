#include <gtest/gtest.h>

#include "gallery.h"

using namespace Qt::StringLiterals;

namespace zelvor::test {

namespace {

// The console in front of what it must live through.
class BadInput : public testing::Test {
 protected:
    void start(Gallery& gallery) {
        gallery.writePack({"Score,score.csp", "Delay,delay.csp", "Play,play.csp", "Long,long.csp"});
        gallery.writeCard("score", "CSPSEND~SCORE\r\nON~0");
        gallery.writeCard("delay", "SHOW2LABEL~lblATEAM;waiting\r\nDELAY~1\r\nCSPSEND~AFTER");
        gallery.writeCard("play", "SHOW2LABEL~lblATEAM;waiting\r\nCSPSEND~AFTER PLAY");
        gallery.writeCard("asks", "SHOW2LABEL~lblATEAM;waiting\r\nBREAK~Go on?\r\nCSPSEND~AFTER");
        gallery.write(u"QRD_EN/long.csp"_s, "CSPSEND~" + QByteArray(1024 * 1024, 'x') + "\r\n");
        gallery.start();
    }
    static bool isConnected(const Gallery& gallery) {
        return gallery.app->links().state(LinkId::Main) == Graphics::kConnected;
    }
    static bool isLost(const Gallery& gallery) { return gallery.at("lblLINKMAIN").text().contains(u"lost at"); }
    // Cards run, panels and boxes change.
    void expectUsable(const Gallery& gallery) {
        gallery.click("GradientButtonAIR");
        gallery.click("GradientButtonS", 0);
        gallery.click("cmbCARD", 0);
        EXPECT_TRUE(gallery.find<CardButton>("cmbCARD", 0)->face().on);
        gallery.click("cmdTAB", 0);
        EXPECT_TRUE(gallery.find<QWidget>("Frame1")->isVisible());
        gallery.click("GradientButtonS", 1);
        EXPECT_EQ(gallery.find<CardButton>("cmbCARD", 0)->text(), u"Second");
    }
};

// What a server does with a connection it has just taken.
using Manners = std::function<void(QTcpSocket& socket)>;

class RudeServer : public QTcpServer {
 public:
    explicit RudeServer(const Manners& manners) {
        connect(this, &QTcpServer::newConnection, this, [this, manners] { manners(*nextPendingConnection()); });
        listen(QHostAddress::LocalHost, 0);
    }
};

TEST_F(BadInput, Servers) {
    constexpr qsizetype kFlood = qsizetype{10} * 1024 * 1024;
    QStringList lines;
    struct Case {
        const char* what;
        Manners manners;
        std::function<void(Gallery&)> afterwards;
    };
    const QList<Case> cases{
        {"accepts and says nothing", [](QTcpSocket&) {}, [](Gallery& gallery) { EXPECT_TRUE(isConnected(gallery)); }},
        {"10 MiB without a line end", [](QTcpSocket& socket) { socket.write(QByteArray(kFlood, 'x')); },
         [](Gallery& gallery) {
             gallery.click("cmdVIEWGASPHISTORY");
             LineList& responses = gallery.app->links().responses();
             const auto received = [&] {
                 qsizetype characters = 0;
                 for (int row = 0; row < responses.rowCount(); ++row) characters += responses.text(row).size();
                 return characters;
             };
             EXPECT_TRUE(waitUntil([&] { return received() > kFlood; }));
         }},
        {"closes after each line",
         [&lines](QTcpSocket& socket) {
             QObject::connect(&socket, &QTcpSocket::readyRead, &socket, [&] {
                 lines += QString::fromUtf8(socket.readAll());
                 socket.disconnectFromHost();
             });
         },
         [&](Gallery& gallery) {
             for (int line = 1; line <= 3; ++line) {
                 gallery.click("cmbCARD", 0);
                 EXPECT_TRUE(waitUntil([&] { return isLost(gallery) && lines.size() == line; }));
                 gallery.click("cmdGASPARCONNECT");
                 gallery.click("cmdGASPARCONNECT");
                 EXPECT_TRUE(waitUntil([&] { return isConnected(gallery); }));
             }
             EXPECT_EQ(lines, QStringList(3, u"SCORE\r\n"_s));
         }},
        {"never reads", [](QTcpSocket& socket) { socket.setReadBufferSize(1); },
         [](Gallery& gallery) {
             for (int i = 0; i < 60 && isConnected(gallery); ++i) gallery.click("cmbCARD", 3);
             EXPECT_TRUE(isLost(gallery)) << "given up";
         }},
    };
    for (const Case& each : cases) {
        SCOPED_TRACE(each.what);
        RudeServer server(each.manners);
        Gallery gallery;
        start(gallery);
        gallery.connectMain(server.serverPort());
        each.afterwards(gallery);
        expectUsable(gallery);
        gallery.app->window().close();
    }
}

TEST_F(BadInput, FeedPortInUse) {
    Gallery first;
    start(first);
    Gallery second;
    second.feedPort = first.app->desk().feedSocket.port();
    start(second);
    EXPECT_EQ(second.at("lblFEED").text(), u"feed not bound: port in use");
    expectUsable(second);
    expectUsable(first);
}

// What the operator does while a card waits.
TEST_F(BadInput, DeedsWhileACardWaits) {
    struct Moment {
        const char* what;
        std::function<void(Gallery&)> fire;
        QString after;
    };
    const QList<Moment> moments{
        {"DELAY", [](Gallery& gallery) { gallery.click("cmbCARD", 1); }, u"AFTER"_s},
        {"the pause before PLAY", [](Gallery& gallery) { gallery.click("cmbCARD", 2); }, u"AFTER PLAY"_s},
        {"a timed card's question",
         [](Gallery& gallery) {
             gallery.app->state().cards.timedCards = {{u"asks.csp"_s, 1}};
             gallery.app->desk().timedCards.tick();
         },
         u"AFTER"_s},
    };
    struct Deed {
        const char* what;
        std::function<void(Gallery&)> act;
        QStringList before;  // sent by the deed itself
        bool goesOn;
        bool endsTheCard = false;
    };
    const QList<Deed> deeds{
        {"closes the window", [](Gallery& gallery) { gallery.app->window().close(); }, {}, false},
        {"changes the card box", [](Gallery& gallery) { gallery.click("GradientButtonS", 1); }, {}, true},
        {"fires another card", [](Gallery& gallery) { gallery.click("cmbCARD", 0); }, {u"SCORE"_s}, true},
        {"clears", [](Gallery& gallery) { gallery.click("GradientButtonAIR"); }, {u"CLEAR 1"_s}, true, true},
    };
    for (const Moment& moment : moments) {
        for (const Deed& deed : deeds) {
            SCOPED_TRACE(std::string(moment.what) + ": the operator " + deed.what);
            LineServer peer;
            Gallery gallery;
            start(gallery);
            gallery.connectMain(peer);
            const std::function<void(QDialog&)> answer = std::exchange(gallery.answer, [](QDialog&) {});
            bool done = false;
            QObject::connect(&gallery.app->form(), &FormModel::changed, &peer, [&](const Control* control) {
                if (control->text() != u"waiting" || std::exchange(done, true)) return;
                QTimer::singleShot(0, &gallery.app->window(), [&] {
                    deed.act(gallery);
                    for (QDialog* box : gallery.app->window().findChildren<QDialog*>()) {
                        if (box->isVisible() && box->findChild<QWidget*>(u"text"_s) != nullptr) answer(*box);
                    }
                });
            });
            moment.fire(gallery);
            gallery.answer = answer;
            EXPECT_TRUE(done);
            EXPECT_EQ(gallery.app->program().closing.hasBegun(), !deed.goesOn);
            const QStringList expected =
                deed.before + (deed.goesOn && !deed.endsTheCard ? QStringList{moment.after} : QStringList());
            EXPECT_TRUE(heard(peer, expected));
            if (deed.goesOn) expectUsable(gallery);
        }
    }
}

}  // namespace

}  // namespace zelvor::test
