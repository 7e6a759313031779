#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QPushButton>
#include <future>

#include "gallery.h"

using namespace Qt::StringLiterals;

namespace zelvor::test {

// What was given in the very moment of closing is with the server before boxes end, and what waited sends no more.
TEST(CardsAppTies, ClosingHandsOverThenEndsBoxesThenRuns) {
    // The server reads on a thread of its own, for the console handles no events at that moment, and not before that.
    std::promise<quint16> port;
    std::promise<void> given;
    std::future<qsizetype> received = std::async(std::launch::async, [&port, &given] {
        QTcpServer server;
        server.listen(QHostAddress::LocalHost, 0);
        port.set_value(server.serverPort());
        server.waitForNewConnection(30000);
        QTcpSocket* peer = server.nextPendingConnection();
        given.get_future().wait_for(std::chrono::seconds(30));
        qsizetype bytes = 0;
        while (peer->waitForReadyRead(30000)) bytes += peer->readAll().size();
        return bytes;
    });
    Gallery gallery;
    gallery.writePack({"Ask,ask.csp"});
    gallery.writeCard("ask", "BREAK~Go on?\r\nCSPSEND~AFTER");
    gallery.start();
    gallery.connectMain(port.get_future().get());
    const QString last(qsizetype{8} * 1024 * 1024, u'x');  // more than sockets take at once
    const CasparLink& link = gallery.app->links().link(LinkId::Main);
    bool ended = false;
    gallery.answer = [&](QDialog& box) {
        QObject::connect(&box, &QDialog::finished, &gallery.app->window(), [&] {
            ended = true;
            EXPECT_EQ(link.unsentBytes(), 0);
        });
        gallery.app->links().sendLine(LinkId::Main, last, {});
        EXPECT_GT(link.unsentBytes(), 0);
        given.set_value();
        gallery.app->program().closing.begin();
    };
    gallery.click("cmbCARD", 0);
    EXPECT_TRUE(ended);
    EXPECT_FALSE(gallery.app->window().isVisible());
    gallery.app.reset();
    EXPECT_EQ(received.get(), last.size() + 2) << "the card has ended";
}

TEST(CardsAppTies, ClearInABoxEndsTheCardAndClearsTheScreen) {
    LineServer server;
    Gallery gallery;
    gallery.writePack({"Ask,ask.csp"});
    gallery.writeCard("ask", "BREAK~Go on?\r\nCSPSEND~AFTER");
    gallery.start();
    gallery.connectMain(server);
    gallery.answer = [](QDialog& box) { box.findChild<QPushButton*>(u"cmdCLEAR"_s)->click(); };
    gallery.click("cmbCARD", 0);
    EXPECT_TRUE(waitUntil([&] { return server.bytes.contains("CLEAR 1"); }));
    EXPECT_FALSE(server.bytes.contains("AFTER"));
}

TEST(CardsAppTies, EqualErrorsAreWrittenOnceASecond) {
    Gallery gallery;
    gallery.start();
    const auto fail = [&](ErrorNumber number) {
        gallery.app->program().trap.run({u"m.Timer"_s}, ErrorTrap::Tell::LogOnly, [&] { throw RunTimeError(number); });
        QFile log(gallery.folder.filePath(u"errors.log"_s));
        return log.open(QIODevice::ReadOnly) ? log.readAll().count("m.Timer") : 0;
    };
    QElapsedTimer time;
    time.start();
    const qsizetype other = fail(ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(fail(ErrorNumber::TypeMismatch), other + 1) << "another error is not held back";
    EXPECT_TRUE(waitUntil([&] { return fail(ErrorNumber::TypeMismatch) == 3; }));
    EXPECT_GE(time.elapsed(), 1000);
}

TEST(CardsAppTies, ScriptEditedToTheSameLengthIsReadAgain) {
    LineServer server;
    Gallery gallery;
    gallery.writePack({"Card,card.csp"});
    gallery.start();
    gallery.connectMain(server);
    int minutes = 0;
    for (const char* word : {"ONE", "TWO"}) {
        gallery.write(u"QRD_EN/card.csp"_s, QByteArray("CSPSEND~") + word);
        QFile file(gallery.folder.filePath(u"MODULES/QRD_EN/card.csp"_s));
        ASSERT_TRUE(file.open(QIODevice::Append));
        file.setFileTime(QDateTime::currentDateTime().addSecs(60 * ++minutes), QFileDevice::FileModificationTime);
        file.close();
        gallery.click("cmbCARD", 0);
        EXPECT_TRUE(heard(server, {QLatin1StringView(word)}));
    }
}

}  // namespace zelvor::test
