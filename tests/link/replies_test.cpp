#include <gtest/gtest.h>

#include <QElapsedTimer>

#include "link/reply_matcher.h"

using namespace Qt::StringLiterals;
using namespace zelvor;

namespace {

// Lines as a CasparCG 2.4.3 has answered them in one connection, and the refusal where it is one.
const std::tuple<QString, QByteArray, QString> kExchanges[] = {
    {u"VERSION"_s, "201 VERSION OK\r\n2.4.3 fd9168c73 Stable\r\n", {}},
    {u"CG 1-20 ADD 1 nosuch 1"_s, "404 CG ADD FAILED\r\n", u"404 CG ADD FAILED"_s},
    {u"INFO"_s, "200 INFO OK\r\n1 720p5000 PLAYING\r\n404 CG ADD FAILED\r\n\r\n", {}},
    {u"DATA RETRIEVE x"_s, "201 DATA RETRIEVE OK\r\n500 IS NO REPLY\r\n", {}},
    {u"INFO PATHS"_s, "201 INFO PATHS OK\r\n<paths>\r\n   <a/>\r\n</paths>\r\n", {}},
    {u"BEGIN"_s, "", {}},
    {u"FOO 1-1"_s, "400 ERROR\r\nFOO 1-1\r\n", u"400 ERROR"_s},
    {u"CG 1-20 PLAY 1"_s, "202 CG OK\r\n", {}},
    {u"PING token"_s, "PONG token\r\n", {}},
    {u"REQ 12 VERSION"_s, "RES 12 201 VERSION OK\r\n2.4.3 fd9168c73 Stable\r\n", {}},
    {u"REQ 13 FOO"_s, "RES 13 400 ERROR\r\nREQ 13 FOO\r\n", u"400 ERROR"_s},
    {u"  "_s, "", {}},
    {u"mixer 1-10 FILL 0"_s, "402 MIXER FILL FAILED\r\n", u"402 MIXER FILL FAILED"_s},
    {u"CG 1-20 STOP 1"_s, "403 CG STOP FAILED\r\n", u"403 CG STOP FAILED"_s},
    {u"CG 1-20 STOP 1"_s, "404\r\n", u"404"_s},
    {u"CG 1-20 STOP 1 Ά"_s, "202 CG OK\r\n", {}},
};

}  // namespace

TEST(ReplyMatcher, FindsTheLineOfEachReply) {
    QByteArray all;
    QStringList wanted;
    for (const auto& [line, reply, refusal] : kExchanges) {
        all += reply;
        if (!refusal.isEmpty()) wanted += line + u": " + refusal;
    }
    // In one packet, in threes, and dripping.
    for (const qsizetype piece : {all.size(), qsizetype{3}, qsizetype{1}}) {
        ReplyMatcher matcher;
        for (const auto& [line, reply, refusal] : kExchanges) matcher.sent({line, {}, 0});
        QStringList refused;
        for (qsizetype i = 0; i < all.size(); i += piece) {
            for (const auto& answer : matcher.read(all.mid(i, piece))) {
                if (answer.refused()) refused += answer.to.line + u": " + answer.reply;
            }
        }
        EXPECT_EQ(refused.join(u'\n').toStdString(), wanted.join(u'\n').toStdString());
        EXPECT_TRUE(matcher.awaited().empty());
    }
}

TEST(ReplyMatcher, GoesOnAtOnceBehindALineWithoutEnd) {
    ReplyMatcher matcher;
    matcher.sent({u"CG 1-20 PLAY 1"_s, {}, 0});
    const QByteArray piece(1024, 'x');
    QElapsedTimer timer;
    timer.start();
    for (int i = 0; i < 15 * 1024; ++i) matcher.read(piece);
    EXPECT_EQ(matcher.read("\r\n202 CG OK\r\n").size(), 1U);
    EXPECT_LT(timer.elapsed(), 1000) << "milliseconds";
}

TEST(ReplyMatcher, StartsAnewWithANewConnection) {
    ReplyMatcher matcher;
    matcher.sent({u"INFO"_s, {}, 0});
    matcher.read("200 INFO OK\r\n1 72");
    matcher.sent({u"CLEAR 1"_s, {}, 0});
    EXPECT_EQ(matcher.forget().size(), 1U);
    matcher.sent({u"CLEAR 2"_s, {}, 0});
    const auto answers = matcher.read("400 ERROR\r\nCLEAR 2\r\n202 CLEAR OK\r\n");
    ASSERT_EQ(answers.size(), 1U) << "a reply to nothing";
    EXPECT_EQ(answers[0].to.line, u"CLEAR 2"_s);
    EXPECT_EQ(answers[0].reply, u"400 ERROR"_s) << "not joined to what was left of the line before";
}
