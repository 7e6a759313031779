#include <gtest/gtest.h>
#include <lo/lo.h>

#include <cstring>

#include "console/gallery.h"

using namespace Qt::StringLiterals;

namespace zelvor::test {
namespace {

// The console behind OSC, and a client of liblo's own.
constexpr lo_timetag kAtOnce{0, 1};  // LO_TT_IMMEDIATE is no C++

class OscTest : public testing::Test {
 protected:
    void SetUp() override {
        gallery.writePack({"Strap,strap.csp"});
        gallery.adjust = [](CardsApp::Options& options) {
            options.remoteControl.osc = {{u"127.0.0.1"_s, 0}, QHostAddress::LocalHost, {}};
        };
        gallery.start();
        gallery.connectMain(server);
        port = gallery.app->remote().osc()->port();
        client = lo_server_new(nullptr, nullptr);
        lo_server_add_method(client, nullptr, nullptr, &OscTest::hear, this);
        const QByteArray number = QByteArray::number(port);
        address = lo_address_new("127.0.0.1", number.constData());
    }
    void TearDown() override {
        lo_address_free(address);
        lo_server_free(client);
    }
    static int hear(const char* path, const char* types, lo_arg** values, int count, lo_message, void* self) {
        QString text = QString::fromUtf8(path);
        for (int i = 0; i < count; ++i) {
            // Not through lo_arg, which is aligned to 8 bytes where OSC is to 4.
            const auto* bytes = reinterpret_cast<const char*>(values[i]);
            qint32 number = 0;
            std::memcpy(&number, bytes, sizeof number);
            text += u' ' + (types[i] == 's' ? QString::fromUtf8(bytes) : QString::number(number));
        }
        static_cast<OscTest*>(self)->heard += text;
        return 0;
    }
    // Whether a message comes that begins so.
    bool hears(const QString& text) {
        return waitUntil([&] {
            while (lo_server_recv_noblock(client, 0) > 0) {
            }
            return std::ranges::any_of(heard, [&](const QString& each) { return each.startsWith(text); });
        });
    }

    LineServer server;
    Gallery gallery;
    quint16 port = 0;
    lo_server client = nullptr;
    lo_address address = nullptr;
    QStringList heard;
};

TEST_F(OscTest, PressesAndIsToldWhatIsOn) {
    lo_send_from(address, client, kAtOnce, "/zelvor/subscribe", "");
    EXPECT_TRUE(hears(u"/zelvor/state/caption/1/1 Strap"_s));
    EXPECT_TRUE(hears(u"/zelvor/state/last/1/1 0"_s));
    lo_send(address, "/zelvor/card/1/1", "i", 1);
    lo_send(address, "/zelvor/card/1/1", "f", 0.0);  // let go
    EXPECT_TRUE(hears(u"/zelvor/state/onair ON AIR Strap"_s));
    EXPECT_TRUE(hears(u"/zelvor/state/last/1/1 1"_s));
    gallery.at("chkMANUAL").setChecked(true);
    lo_send(address, "/zelvor/score/home/set", "i", 9);
    lo_send(address, "/zelvor/score/home", "s", "+3");
    lo_send(address, "/zelvor/score/home", "f", -1.0);
    EXPECT_TRUE(hears(u"/zelvor/state/score/home 11"_s));
    lo_send(address, "/zelvor/clear", "");
    EXPECT_TRUE(waitUntil([&] { return server.bytes.contains("CLEAR 1"); }));
    EXPECT_EQ(server.bytes.count("STRAP"), 1);
    for (const char* path :
         {"/zelvor/nothing", "/other", "/zelvor/card/1/99", "/zelvor/script/..%2Fx.csp", "/zelvor/score/home/set"}) {
        heard.clear();
        lo_send_from(address, client, kAtOnce, path, "i", -1);
        EXPECT_TRUE(hears(u"/zelvor/error"_s)) << path;
    }
    EXPECT_EQ(gallery.at("lblScoreA").text(), u"11");
}

TEST_F(OscTest, CutAndNestedPacketsEndNothing) {
    const QByteArray message = OscMessage{u"/zelvor/variable/@X"_s, {u"text"_s}}.bytes();
    const auto bundled = [](const QByteArray& inner) -> QByteArray {
        const auto size = static_cast<quint32>(inner.size());
        QByteArray bytes("#bundle\0\0\0\0\0\0\0\0\1", 16);
        for (int shift = 24; shift >= 0; shift -= 8) bytes += static_cast<char>(size >> shift);
        return bytes + inner;
    };
    QByteArray deep = message;
    for (int i = 0; i < 20; ++i) deep = bundled(deep);
    EXPECT_EQ(readOscPacket(bundled(bundled(message)))->size(), 1U);
    EXPECT_FALSE(readOscPacket(deep));
    // Old senders leave the types out where there are no arguments.
    const auto untyped = readOscPacket(QByteArray("/zelvor/clear\0\0\0", 16));
    ASSERT_TRUE(untyped);
    EXPECT_EQ(untyped->front().address, u"/zelvor/clear");
    EXPECT_FALSE(readOscPacket(QByteArray("/zelvor/key/1\0\0\0\0\0\0\1", 20))) << "arguments of which kind?";
    QUdpSocket socket;
    for (const QByteArray& whole : {message, bundled(message), deep}) {
        for (qsizetype cut = 0; cut < whole.size(); ++cut) {
            socket.writeDatagram(whole.left(cut), QHostAddress::LocalHost, port);
            if (cut % 50 == 0) QCoreApplication::processEvents();
        }
    }
    socket.writeDatagram(message, QHostAddress::LocalHost, port);
    EXPECT_TRUE(waitUntil([&] { return gallery.app->state().variables.text(u"@X") == u"text"; }));
}

TEST_F(OscTest, HearsOnAfterABurst) {
    QUdpSocket socket;
    ASSERT_TRUE(socket.bind(QHostAddress::LocalHost, 0));
    constexpr int kBurst = 150;  // more than are read in one turn
    for (int i = 0; i < kBurst; ++i) socket.writeDatagram("no OSC", QHostAddress::LocalHost, port);
    int answers = 0;
    EXPECT_TRUE(waitUntil([&] {
        for (; socket.hasPendingDatagrams(); ++answers) socket.readDatagram(nullptr, 0);
        return answers == kBurst;
    }));
    socket.writeDatagram(OscMessage{u"/zelvor/variable/@X"_s, {u"text"_s}}.bytes(), QHostAddress::LocalHost, port);
    EXPECT_TRUE(waitUntil([&] { return gallery.app->state().variables.text(u"@X") == u"text"; }));
}

}  // namespace
}  // namespace zelvor::test
