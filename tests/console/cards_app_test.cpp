#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <atomic>

#include "gallery.h"
#include "support/graphics_peer.h"

using namespace Qt::StringLiterals;

namespace zelvor::test {

// What was given in the very moment of closing is with the server before boxes end, and what waited sends no more.
TEST(CardsAppTies, ClosingHandsOverThenEndsBoxesThenRuns) {
    std::atomic<qsizetype> taken = 0;
    GraphicsPeer server({[] {}, [&](std::string_view line) { taken += static_cast<qsizetype>(line.size()); }});
    ASSERT_TRUE(server.start());
    Gallery gallery;
    gallery.writePack({"Ask,ask.csp"});
    gallery.write(u"QRD_EN/ask.csp"_s, "BREAK~Go on?\r\nCSPSEND~AFTER\r\n");
    gallery.start();
    gallery.connectMain(server.port());
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
        gallery.app->program().closing.begin();
    };
    gallery.click("cmbCARD", 0);
    EXPECT_TRUE(ended);
    EXPECT_FALSE(gallery.app->window().isVisible());
    EXPECT_TRUE(waitUntil([&] { return taken > 0; }));
    gallery.app.reset();
    server.stop(GraphicsPeer::End::Orderly);
    EXPECT_EQ(taken, last.size()) << "the card has ended";
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
        EXPECT_TRUE(waitUntil([&] { return !server.bytes.isEmpty(); }));
        EXPECT_EQ(server.takeLines(), QStringList{QLatin1StringView(word)});
    }
}

}  // namespace zelvor::test
