#include "rehearsal/amcp_server.h"

#include <gtest/gtest.h>

#include <QTcpSocket>
#include <memory>
#include <vector>

#include "support/wait.h"

using namespace Qt::StringLiterals;

namespace zelvor::rehearsal {
namespace {

using test::waitUntil;

class AmcpServerTest : public testing::Test {
 protected:
    void SetUp() override { ASSERT_TRUE(server_.listen(QHostAddress::LocalHost, 0)); }

    void connectTo(QTcpSocket& socket) const { socket.connectToHost(QHostAddress::LocalHost, server_.port()); }

    // What the socket gets until SIZE bytes are there.
    static QByteArray received(QTcpSocket& socket, qsizetype size) {
        QByteArray bytes;
        waitUntil([&] { return (bytes += socket.readAll()).size() >= size; });
        return bytes;
    }

    QStringList notes() const {
        QStringList texts;
        for (const Journal::Line& line : journal_.lines()) {
            if (line.kind == Journal::Kind::Note) {
                texts.append(line.text);
            }
        }
        return texts;
    }

    Stage stage_{2};
    TemplateFolder folder_{QString()};
    AmcpInterpreter interpreter_{stage_, folder_};
    Journal journal_;
    AmcpServer server_{interpreter_, journal_};
};

TEST_F(AmcpServerTest, AnswersHalfLinesLongLinesAndSeveralLinesAtOnce) {
    QTcpSocket socket;
    connectTo(socket);
    socket.write("PI");
    ASSERT_TRUE(waitUntil([&] { return socket.bytesToWrite() == 0 && server_.clientCount() == 1; }));
    socket.write("NG a\r");
    EXPECT_EQ(received(socket, 8), "PONG a\r\n");
    socket.write("\nPING b\r\r\n\nPING \"c\n");
    EXPECT_EQ(received(socket, 16), "PONG b\r\nPONG c\r\n");

    const QByteArray mebibyte(1 << 20, 'm');
    socket.write("PING " + mebibyte + "\r\n");
    EXPECT_EQ(received(socket, 7 + mebibyte.size()), "PONG " + mebibyte + "\r\n");
    socket.write(QByteArray(LineBuffer::kMaxLine + 1, 'n') + "\r\nPING d\r\n");
    const QByteArray refused = "400 ERROR\r\n" + QByteArray(LineBuffer::kShownOfOverlong, 'n') + "\r\nPONG d\r\n";
    EXPECT_EQ(received(socket, refused.size()), refused);

    EXPECT_EQ(journal_.lines().back().text, u"PONG d"_s);
    for (const Journal::Line& line : journal_.lines()) EXPECT_LT(line.text.size(), Journal::kMaxText + 40);
}

TEST_F(AmcpServerTest, ServesManyClientsAndNotesWhenTheyGo) {
    std::vector<std::unique_ptr<QTcpSocket>> sockets;
    for (int i = 0; i < 200; ++i) connectTo(*sockets.emplace_back(std::make_unique<QTcpSocket>()));
    ASSERT_TRUE(waitUntil([&] { return server_.clientCount() == 200; })) << server_.clientCount();
    for (std::size_t i = 0; i < sockets.size(); ++i)
        sockets[i]->write("PING " + QByteArray::number(int(i + 1000)) + "\r\n");
    for (std::size_t i = 0; i < sockets.size(); ++i)
        EXPECT_EQ(received(*sockets[i], 11), "PONG " + QByteArray::number(int(i + 1000)) + "\r\n");
    EXPECT_EQ(journal_.lines().size(), Journal::kMaxLines);
    sockets.clear();
    ASSERT_TRUE(waitUntil([&] { return server_.clientCount() == 0; }));
    EXPECT_EQ(notes().back(), u"disconnected"_s);
}

TEST_F(AmcpServerTest, DropsAClientThatNeverReads) {
    QTcpSocket lazy;
    lazy.setReadBufferSize(1);
    connectTo(lazy);
    ASSERT_TRUE(waitUntil([&] { return lazy.state() == QAbstractSocket::ConnectedState; }));
    const QByteArray line = "PING " + QByteArray(1 << 20, 'x') + "\r\n";
    for (int i = 0; i < 64; ++i) lazy.write(line);
    ASSERT_TRUE(waitUntil([&] { return notes().contains(u"dropped: does not read its replies"_s); }));
    EXPECT_TRUE(waitUntil([&] { return server_.clientCount() == 0; }));

    QTcpSocket next;
    connectTo(next);
    next.write("PING a\r\n");
    EXPECT_EQ(received(next, 8), "PONG a\r\n");
}

}  // namespace
}  // namespace zelvor::rehearsal
