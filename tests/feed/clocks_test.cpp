#include <gtest/gtest.h>

#include "studio.h"

using namespace Qt::StringLiterals;
using namespace zelvor;
using namespace zelvor::test;

TEST(LocalClock, ShowsTheTimeOrTheCountdown) {
    // Which of optTIMERS, -1 for neither; the time, the target, then lblCLOCK|@CLOCKS|@LOCALTIME.
    const std::tuple<int, QTime, QString, QString> cases[] = {
        {0, QTime(9, 5, 7), u"bad"_s, u"09:05:07|09:05:07|09:05:07"_s},
        {-1, QTime(9, 5, 7), u"10:00:00"_s, u"00:00:00|-|09:05:07"_s},
        {1, QTime(0, 0, 5), u"00:00:10"_s, u"00:00:05|00:00:05|00:00:05"_s},
        {1, QTime(0, 0, 11), u"00:00:10"_s, u"23:59:59|23:59:59|00:00:11"_s},
        {1, QTime(20, 0, 0, 900), u" 20:30 "_s, u"00:30:00|00:30:00|20:00:00"_s},
        {1, QTime(20, 0), u"25:61:00"_s, u"00:00:00|-|-"_s},
        {1, QTime(20, 0), QString(), u"00:00:00|-|-"_s},
    };
    for (const auto& [option, now, target, left] : cases) {
        Studio studio;
        for (int i = 0; i < 2; ++i) studio.at("optTIMERS", i).setChecked(i == option);
        studio.at("txtCOUNTDOWNTIME").setText(target);
        studio.clock.time.setTime(now);
        studio.desk.localClock.tick();
        EXPECT_EQ(QString(studio.at("lblCLOCK").text() + u'|' + studio.variablesText({u"@CLOCKS"_s, u"@LOCALTIME"_s})),
                  left);
        EXPECT_EQ(studio.operatorDesk.shown, QStringList());
    }
}

TEST(LocalClock, RunsItsCardOneSecondAtATime) {
    Studio studio;
    studio.writeCard("clock.csp", "{@CLOCKS}");
    studio.state.switches.AutoClockCard = u"clock.qrd"_s;
    studio.desk.localClock.tick();
    EXPECT_TRUE(studio.graphics.sent.isEmpty());
    studio.state.switches.IsClockCard = true;

    auto* timer = studio.desk.localClock.findChild<QTimer*>(u"tmrCLOCKS"_s);
    studio.clock.time.setTime(QTime(20, 0, 0, 700));
    studio.desk.localClock.cmdCLOCKS();
    EXPECT_TRUE(timer->isActive());
    EXPECT_EQ(timer->interval(), 310) << "just behind the full second";
    studio.clock.time.setTime(QTime(20, 0, 1));
    // Two seconds pass while the first card waits: one tick follows it, not inside it.
    studio.graphics.whileSending = [&] {
        if (studio.graphics.sent.size() > 1) return;
        studio.clock.time.setTime(QTime(20, 0, 3));
        studio.desk.localClock.tick();
        studio.desk.localClock.tick();
        EXPECT_EQ(studio.graphics.sent.size(), 1);
    };
    studio.desk.localClock.tick();
    EXPECT_EQ(studio.graphics.sent, QStringList({u"m20:00:01"_s}));
    QCoreApplication::processEvents();
    EXPECT_EQ(studio.graphics.sent, QStringList({u"m20:00:01"_s, u"m20:00:03"_s}));

    studio.desk.localClock.cmdCLOCKS();
    EXPECT_FALSE(timer->isActive());
}

TEST(TimedCards, RunEachAtItsInterval) {
    Studio studio;
    for (const QByteArray card : {"every", "fifth", "never", "back"})
        studio.write(u"QRD_TT/"_s + QString::fromLatin1(card) + u".csp"_s, "FUNCTIONCARD\nCSPSEND~" + card + '\n');
    studio.state.cards.timedCards = {
        {u"every.qrd"_s, 1}, {u"never.csp"_s, 0}, {u"fifth.csp"_s, 5}, {u"back.csp"_s, -3}};
    for (int i = 0; i < 10; ++i) studio.desk.timedCards.tick();
    EXPECT_EQ(studio.graphics.sent.count(u"mevery"_s), 10);
    EXPECT_EQ(studio.graphics.sent.count(u"mfifth"_s), 2);
    EXPECT_EQ(studio.graphics.sent.size(), 12);
    // After an hour the cards behind one that never fires still run.
    studio.state.cards.timedCards[1].ticks = 32767;
    for (int i = 0; i < 5; ++i) studio.desk.timedCards.tick();
    EXPECT_EQ(studio.graphics.sent.count(u"mfifth"_s), 3);
    EXPECT_EQ(studio.operatorDesk.shown, QStringList());
}

TEST(TimedCards, SwitchTheirTimerOffMeanwhile) {
    Studio studio;
    studio.write(u"QRD_TT/card.csp"_s, "FUNCTIONCARD\nCSPSEND~x\nDELAY~soon\n");
    studio.state.cards.timedCards = {{u"card.csp"_s, 1}, {u"card.csp"_s, 1}};
    auto* timer = studio.desk.timedCards.findChild<QTimer*>(u"tmrCARD"_s);
    studio.desk.timedCards.start();
    // Another card table is loaded while the first card waits.
    studio.graphics.whileSending = [&] {
        EXPECT_FALSE(timer->isActive());
        studio.desk.timedCards.tick();
        studio.state.cards.timedCards.clear();
    };
    studio.desk.timedCards.tick();
    EXPECT_EQ(studio.graphics.sent.size(), 1);
    EXPECT_TRUE(timer->isActive());
    ASSERT_EQ(studio.operatorDesk.askers.size(), 1);
    EXPECT_EQ(studio.operatorDesk.askers[0].kind, Asker::Kind::TimedCard) << "whose error it is";
    EXPECT_EQ(studio.operatorDesk.askers[0].card, u"card.csp");
}

TEST(UnattendedCards, FollowAWaitOnce) {
    for (const bool forPress : {false, true}) {
        SCOPED_TRACE(forPress);
        Studio studio;
        studio.write(u"QRD_TT/clock.csp"_s, "FUNCTIONCARD\nSQLU~slow\nCSPSEND~{@CLOCKS}\n");
        studio.writeCard("time.csp", "{@TIMER}");
        studio.writeCard("tenth.csp", "tenth");
        CardSwitches& switches = studio.state.switches;
        switches.AutoClockCard = u"clock.csp"_s;
        switches.AutoTimeCard = u"time.csp"_s;
        switches.IsClockCard = switches.IsTimeCard = true;
        studio.state.cards.timedCards = {{u"tenth.csp"_s, 3}};
        ASSERT_TRUE(studio.desk.feedSocket.bind(0));
        const auto meanwhile = [&] {
            for (int i = 0; i < 9; ++i) studio.desk.timedCards.tick();
            studio.desk.localClock.tick();
            studio.sendToFeed({"t2:42t", "t2:41t", "t2:40t"});
            EXPECT_TRUE(waitUntil([&] { return studio.taken() == 3; }));
            EXPECT_EQ(studio.variablesText({u"@CLOCKS"_s, u"@TIMER"_s}), u"20:00:03|2:40");
            EXPECT_EQ(studio.graphics.sent, QStringList()) << "the form follows, no card runs";
        };
        PressRoom& room = studio.program.pressRoom;
        if (forPress) {
            studio.clock.time.setTime(QTime(20, 0, 3));
            room.make(studio.clock.steadyMilliseconds());
            meanwhile();
            room.end();
        } else {
            studio.clock.time.setTime(QTime(20, 0, 1));
            studio.database.whileWaiting = [&] {
                studio.database.whileWaiting = {};
                studio.clock.time.setTime(QTime(20, 0, 3));
                meanwhile();
            };
            studio.desk.localClock.tick();
            EXPECT_EQ(std::exchange(studio.graphics.sent, {}), QStringList{u"m20:00:03"_s});
        }
        QCoreApplication::processEvents();
        studio.desk.timedCards.tick();
        QStringList& sent = studio.graphics.sent;
        sent.sort();
        EXPECT_EQ(sent, QStringList({u"m20:00:03"_s, u"m2:40"_s, u"mtenth"_s}));

        // Presses without end do not stop the clock on air.
        room.make(studio.clock.steadyMilliseconds());
        for (const int waited : {499, 1}) {
            sent.clear();
            studio.clock.time = studio.clock.time.addMSecs(waited);
            room.make(studio.clock.steadyMilliseconds());
            studio.desk.localClock.tick();
            EXPECT_EQ(sent.size(), waited == 1);
        }
    }
}

TEST(UnattendedCards, RestWhenTheDatabaseDoesNotAnswerThem) {
    Studio studio;
    studio.write(u"QRD_TT/slow.csp"_s, "FUNCTIONCARD\nSQLU~slow\nCSPSEND~x\n");
    studio.state.cards.timedCards = {{u"slow.qrd"_s, 1}};
    bool answers = false;
    studio.database.whileWaiting = [&] {
        if (!answers) studio.program.databaseWait.tellRanOut({Asker::Kind::TimedCard, u"slow.qrd"_s});
    };
    const auto runsWithin = [&](int seconds) {
        const qsizetype before = studio.database.statements.size();
        for (int i = 0; i < seconds * 10; ++i) {
            studio.clock.time = studio.clock.time.addMSecs(100);
            studio.desk.timedCards.tick();
        }
        return studio.database.statements.size() - before;
    };
    studio.clock.time.setTime(QTime(20, 0));
    EXPECT_EQ(runsWithin(9), 2);
    EXPECT_EQ(studio.at("lblBACKOFF").text(), u"slow.csp rests until 20:00:10: no answer from the database in time"_s);
    EXPECT_EQ(runsWithin(21), 1) << "10 s, then 20 s";
    EXPECT_EQ(runsWithin(40), 1) << "40 s";
    EXPECT_EQ(runsWithin(181), 4) << "a minute at most";
    answers = true;
    EXPECT_GT(runsWithin(60), 1);
    EXPECT_EQ(studio.at("lblBACKOFF").text(), QString());
    answers = false;
    EXPECT_EQ(runsWithin(9), 2) << "counted anew";
}

TEST(StopwatchSender, SendsFractionsOfASixtieth) {
    Studio studio;
    for (const bool active : {true, false}) {
        studio.desk.stopwatch.Command1();
        EXPECT_EQ(studio.desk.stopwatch.findChild<QTimer*>(u"tmrTEST"_s)->isActive(), active);
        EXPECT_EQ(studio.at("lblTESTSENDER").visible(), active);
    }
    for (int i = 0; i < 61; ++i) studio.desk.stopwatch.tick();
    const auto line = [](const QString& value) {
        return QString(
            uR"(mCG 1-2 UPDATE 1 "<templateData><componentData id=\"team1\"><data type=\"txt\" ani=\"0\" )"_s +
            uR"(value=\")"_s + value + uR"(\"></data></componentData></templateData>")"_s);
    };
    EXPECT_EQ(studio.graphics.sent.mid(58), QStringList({line(u"0.59"_s), line(u"1.00"_s), line(u"1.01"_s)}));
}
