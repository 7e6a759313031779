#include <gtest/gtest.h>

#include "app_feed/clock_sender.h"
#include "app_feed/feed_command.h"
#include "studio.h"
#include "support/cases.h"
#include "support/receiver.h"
#include "support/told.h"

using namespace Qt::StringLiterals;
using namespace zelvor;
using namespace zelvor::test;

TEST(ClockSender, CountsDownAndUpToTheEnd) {
    const std::pair<QStringList, QString> cases[] = {
        {{u"--from"_s, u"0:02"_s}, u"t0:02t t0:01t t0:00t"_s},
        {{u"--up"_s, u"--from=59:58"_s, u"--jitter"_s}, u"t59:58t t59:59t t60:00t"_s},
        {{u"--up"_s, u"--down"_s, u"--from"_s, u"0:00"_s}, u"t0:00t"_s},
    };
    for (const auto& [arguments, heard] : cases) {
        Receiver receiver;
        const QString to = u"--to=127.0.0.1:%1"_s.arg(receiver.localPort());
        const Told told(runFeed, arguments + QStringList{u"--speed=200"_s, to});
        EXPECT_EQ(told.status, 0);
        const auto count = heard.count(u' ') + 1;
        EXPECT_TRUE(told.out.endsWith(QString::number(count) + u" datagrams sent\n"_s)) << qPrintable(told.out);
        EXPECT_TRUE(waitUntil([&] { return receiver.heard.size() == count; }));
        EXPECT_EQ(receiver.heard.join(u' '), heard);
    }
}

// By what was sent, not by what arrives: on a busy machine the steps that were missed come all at once.
TEST(ClockSender, PausesAndGoesOn) {
    FeedOptions options;
    options.to.port = Receiver().localPort();
    options.from = 1;
    options.speed = 200;
    ClockSender sender(options, QHostAddress(QHostAddress::LocalHost));
    QStringList sent;
    bool finished = false;
    QObject::connect(&sender, &ClockSender::finished, &sender, [&] { finished = true; });
    QObject::connect(&sender, &ClockSender::shown, &sender, [&](const QString& datagram) {
        sent += datagram;
        if (datagram == u"t0:01t") sender.togglePause();
    });
    sender.start();
    EXPECT_TRUE(waitUntil([&] { return sent.size() >= 4; }));
    EXPECT_EQ(sent.count(u"pause"_s), sent.size() - 1) << "it says so for as long as it is stopped";
    sender.togglePause();
    EXPECT_TRUE(waitUntil([&] { return finished; }));
    EXPECT_EQ(sent.size(), sender.sent());
    EXPECT_EQ(sent.first(), u"t0:01t"_s);
    EXPECT_EQ(sent.last(), u"t0:00t"_s);
}

TEST(ClockSender, RefusesWrongUsage) {
    const auto refuses = [](const QString& line, const QString& fault) {
        const Told told(runFeed, line.split(u' '));
        EXPECT_EQ(told.status, 2);
        EXPECT_EQ(told.err, fault);
    };
    forCases(refuses, "--to localhost -> --to takes HOST:PORT, not localhost",
             "--from 60:01 -> --from takes a clock from 0:00 to 60:00, not 60:01",
             "--speed nan -> --speed takes a number above 0, up to 1000, not nan", "10:00 -> not understood: 10:00");
}
