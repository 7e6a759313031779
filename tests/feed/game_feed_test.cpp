#include <gtest/gtest.h>

#include <QSocketNotifier>

#include "form/follow.h"
#include "studio.h"

using namespace Qt::StringLiterals;
using namespace zelvor;
using namespace zelvor::test;

namespace {

constexpr auto kClock = GameFeed::Outcome::Clock;
constexpr auto kPause = GameFeed::Outcome::Pause;
constexpr auto kRefused = GameFeed::Outcome::Refused;

const QStringList kFeedVariables{u"@FULLTIMER"_s,        u"@TIMER"_s,         u"@TIMERNUMBER"_s,   u"@TIMEREXTRA"_s,
                                 u"@TIMEREXTRANUMBER"_s, u"@SHOWEXTRATIME"_s, u"@EXTRATIMEONAIR"_s};

}  // namespace

TEST(GameFeed, SetsTheGameTimeAndSplitsExtraTime) {
    // The threshold, if extra time is split off; the datagrams and what becomes of the last; the variables, lblTime,
    // lblETime.
    const std::tuple<std::optional<QString>, QStringList, GameFeed::Outcome, QString> cases[] = {
        {std::nullopt, {u"xt45:00tt:t9:99t"_s}, kClock, u"45:00|45:00|4500| |0|0|0|45:00| "_s},
        {std::nullopt, {u"t0:05"_s}, kClock, u"0:05|0:05|5| |0|0|0|0:05| "_s},
        {std::nullopt, {u"t-1:05t"_s}, kClock, u"-1:05|-1:05|-105| |0|0|0|-1:05| "_s},
        {std::nullopt, {u"t123:45t\r\n"_s}, kClock, u"123:45|123:45|12345| |0|0|0|123:45| "_s},
        {u"4500"_s, {u"t44:59t"_s, u"t45:00t"_s}, kClock, u"45:00|45:00|4500|0:00|0|1|0|45:00|0:00"_s},
        {u"4500"_s, {u"t45:00t"_s, u"t46:10t"_s}, kClock, u"46:10|45:00|4500|1:10|110|1|-|45:00|1:10"_s},
        // A feed that skips the threshold never shows extra time.
        {u"4500"_s, {u"t44:59t"_s, u"t45:01t"_s}, kClock, u"45:01|45:00|4500|0:01|1|0|0|45:00|0:01"_s},
        {u"4500"_s, {u"t45:00t"_s, u"t46:10t"_s, u"t44:00t"_s}, kClock, u"44:00|44:00|4400|0:00|0|0|0|44:00|0:00"_s},
        // Digits are subtracted, not seconds.
        {u"4530"_s, {u"t46:01t"_s}, kClock, u"46:01|45:30|4530|0:71|71|-|-|45:30|0:71"_s},
        {u""_s, {u"t0:01t"_s}, kClock, u"0:01|0:00|0|0:01|1|-|-|0:00|0:01"_s},
        {std::nullopt, {u"t9:58t"_s, u"pause"_s}, kPause, u"9:58|9:58|958| |0|0|0|9:58| "_s},
        {std::nullopt, {u"Pause"_s}, kRefused, u"-|-|-|-|-|-|-||"_s},
        {std::nullopt, {QString()}, kRefused, u"-|-|-|-|-|-|-||"_s},
        {std::nullopt, {u"tt"_s}, kRefused, u"-|-|-|-|-|-|-||"_s},
        {std::nullopt, {u"t٩:٥٨t"_s}, kRefused, u"-|-|-|-|-|-|-||"_s},
        {std::nullopt, {u"t99999999999t"_s}, kRefused, u"-|-|-|-|-|-|-||"_s},
        {u"abc"_s, {u"t9:58t"_s}, kRefused, u"-|-|-|-|-|-|-||"_s},
    };
    for (const auto& [threshold, datagrams, outcome, left] : cases) {
        Studio studio;
        studio.at("chkEAFTER").setChecked(threshold.has_value());
        if (threshold) studio.at("txtEAFTER").setText(*threshold);
        GameFeed::Outcome last = kPause;
        for (const QString& datagram : datagrams) last = studio.desk.feed.handle(datagram);
        SCOPED_TRACE(datagrams.join(u' ').toStdString());
        EXPECT_EQ(last, outcome);
        EXPECT_EQ(QString(studio.variablesText(kFeedVariables) + u'|' + studio.at("lblTime").text() + u'|' +
                          studio.at("lblETime").text()),
                  left);
        EXPECT_EQ(studio.operatorDesk.shown, QStringList());
    }
}

TEST(FeedSocket, CountsWhatArrivesAndSaysHowTheFeedIs) {
    Studio studio;
    const Control& words = studio.at("lblFEED");
    EXPECT_EQ(words.role(), Control::Role::Off);
    // Not bound, as the preview instance's: nothing is read from it.
    static int warnings = 0;
    const auto usual = qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) { ++warnings; });
    Q_EMIT studio.desk.feed.cardMayRun();
    qInstallMessageHandler(usual);
    EXPECT_EQ(warnings, 0);
    ASSERT_TRUE(studio.desk.feedSocket.bind(0));
    studio.desk.feedStatus.check();
    EXPECT_EQ(words.role(), Control::Role::Waiting);
    EXPECT_EQ(words.text(), u"feed bound, nothing heard"_s);
    studio.clock.time.setTime(QTime(20, 31, 7));
    const QByteArray large = "t" + QByteArray(65000, '1') + "t";
    studio.sendToFeed({"", large, QByteArray("\0t\xff\x80t", 5), "t2:42t", "pause", "t2:41t"});
    EXPECT_TRUE(waitUntil([&] { return studio.taken() == 6; }));
    EXPECT_EQ(words.text(), u"feed 2:41, 3 refused"_s);
    EXPECT_EQ(words.role(), Control::Role::Good);
    studio.clock.time = studio.clock.time.addMSecs(FeedStatus::kSilence - 1);
    studio.desk.feedStatus.check();
    studio.clock.set(3'600'000);
    studio.desk.feedStatus.check();
    EXPECT_EQ(words.text(), u"feed 2:41, 3 refused"_s) << "setting the clock is no silence";
    EXPECT_EQ(studio.at("lblFEEDDETAIL").text().section(u", "_s, 1),
              u"3 handled, 3 refused\nlast datagram 20:31:07 from 127.0.0.1"_s);
    studio.clock.time = studio.clock.time.addMSecs(1);
    studio.desk.feedStatus.check();
    EXPECT_EQ(words.text(), u"feed silent since 20:31:07"_s);
    EXPECT_EQ(words.role(), Control::Role::Bad);
    EXPECT_EQ(studio.at("lblTime").foreColour(), colours::kRed);
    studio.sendToFeed({"pause"});
    EXPECT_TRUE(waitUntil([&] { return studio.taken() == 7; }));
    EXPECT_EQ(words.text(), u"feed paused, 3 refused"_s);
}

// As the event loop does when what it has found to be there was read in a turn within the same turn.
TEST(FeedSocket, HearsOnWhenItIsToldOfWhatWasReadAlready) {
    Studio studio;
    ASSERT_TRUE(studio.desk.feedSocket.bind(0));
    auto* notifier = studio.desk.feedSocket.findChild<QSocketNotifier*>();
    ASSERT_NE(notifier, nullptr);
    QEvent readable(QEvent::SockAct);
    QCoreApplication::sendEvent(notifier, &readable);
    studio.sendToFeed({"t2:42t"});
    EXPECT_TRUE(waitUntil([&] { return studio.taken() == 1; }));
}

TEST(FeedSocket, RunsTheTimeCardForTheNewestAndNeverInsideAnother) {
    Studio studio;
    studio.writeCard("clock.csp", "CG 1-1 PLAY {@TIMERNUMBER}");
    studio.state.switches.AutoTimeCard = u"clock.qrd"_s;
    studio.state.switches.IsTimeCard = true;
    ASSERT_TRUE(studio.desk.feedSocket.bind(0));
    const Control& words = studio.at("lblFEED");
    constexpr int kMore = 1000;
    int times = 0;
    zelvor::onChange(studio.at("lblTime"), {Control::Property::Text}, &studio.desk.feed, [&times] { ++times; });
    QStringList said;
    int depth = 0;
    int deepest = 0;
    // The first card's pause lasts until a thousand more datagrams are there, and then for a second.
    studio.graphics.whileSending = [&] {
        deepest = std::max(deepest, ++depth);
        if (studio.graphics.sent.size() == 1) {
            QList<QByteArray> more;
            for (int i = 1; i <= kMore; ++i) more += 't' + QByteArray::number(i) + 't';
            studio.sendToFeed(more + QList<QByteArray>{"pause", "nonsense"});
            EXPECT_TRUE(waitUntil([&] { return studio.desk.feedSocket.waiting() == kMore + 2; }));
            for (const int wait : {999, 1}) {
                studio.clock.time = studio.clock.time.addMSecs(wait);
                studio.desk.feedStatus.check();
                said += words.text();
            }
        }
        --depth;
    };
    studio.sendToFeed({"t0t"});
    EXPECT_TRUE(waitUntil([&] { return studio.graphics.sent.size() == 2; }));
    EXPECT_EQ(said, (QStringList{u"feed 0:00"_s, u"feed held by a card, 1002 waiting"_s}));
    EXPECT_EQ(deepest, 1);
    EXPECT_EQ(times, kMore + 1) << "the variables follow every message";
    EXPECT_EQ(studio.graphics.sent, (QStringList{u"mCG 1-1 PLAY 0"_s, u"mCG 1-1 PLAY 1000"_s}));
    EXPECT_EQ(words.text(), u"feed paused, 1 refused"_s);
}

TEST(FeedStatus, SaysWhatKeepsTheClockFromFollowing) {
    Studio studio;
    FeedStatus& status = studio.desk.feedStatus;
    const Control& words = studio.at("lblFEED");
    status.bound(7699);
    studio.state.variables.SetVar(u"@FULLTIMER", u"7:06"_s);
    const auto hear = [&](GameFeed::Outcome outcome) {
        status.arrived(QHostAddress(u"::ffff:10.0.0.5"_s));
        status.handled(outcome);
    };
    const auto wait = [&](int milliseconds) { studio.clock.time = studio.clock.time.addMSecs(milliseconds); };
    hear(kClock);
    status.waits(174, studio.clock.steadyMilliseconds());
    wait(999);
    status.check();
    EXPECT_EQ(words.text(), u"feed 7:06"_s);
    EXPECT_TRUE(studio.at("lblFEEDDETAIL").text().endsWith(u" from 10.0.0.5"_s));
    wait(1);
    status.check();
    EXPECT_EQ(words.text(), u"feed 7:06, 174 waiting"_s);
    EXPECT_EQ(words.role(), Control::Role::Waiting);
    status.waits(0, 0);
    EXPECT_EQ(words.role(), Control::Role::Good);
    // Refused messages alone, for less than three seconds and for three.
    hear(kRefused);
    wait(2999);
    hear(kRefused);
    EXPECT_EQ(words.text(), u"feed 7:06, 2 refused"_s);
    wait(1);
    hear(kRefused);
    EXPECT_EQ(words.text(), u"feed not understood, 3 refused"_s);
    EXPECT_EQ(words.role(), Control::Role::Bad);
    EXPECT_EQ(studio.at("lblTime").foreColour(), colours::kRed);
    hear(kPause);
    EXPECT_EQ(words.text(), u"feed paused, 3 refused"_s);
    EXPECT_EQ(studio.at("lblTime").foreColour(), std::nullopt);
}

TEST(FeedBoxes, AreMarkedWhileTheirTextIsOfNoUse) {
    Studio studio;
    // What is right, what is wrong.
    const std::tuple<const char*, QStringList, QStringList> cases[] = {
        {"txtEAFTER", {u""_s, u"4500"_s}, {u"45:00"_s, u"99999999999"_s}},
        {"txtCOUNTDOWNTIME", {u"8:05"_s, u"20:30:00"_s}, {u"24:00:00"_s, u""_s}},
    };
    for (const auto& [box, right, wrong] : cases) {
        for (const QString& text : right + wrong) {
            studio.at(box).setText(text);
            EXPECT_EQ(studio.at(box).state().isEmpty(), right.contains(text)) << box << text.toStdString();
        }
    }
}
