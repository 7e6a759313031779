#include <gtest/gtest.h>

#include <QNetworkDatagram>

#include "app_feed/clock_sender.h"
#include "app_feed/feed_command.h"
#include "command_line/command_line.h"
#include "studio.h"

using namespace Qt::StringLiterals;
using namespace zelvor;
using namespace zelvor::test;

namespace {

struct Receiver : QUdpSocket {
    Receiver() {
        connect(this, &QUdpSocket::readyRead, this, [this] {
            while (hasPendingDatagrams()) heard += QString::fromLatin1(receiveDatagram().data());
        });
        bind(QHostAddress::LocalHost, 0);
    }
    QString address() const { return u"127.0.0.1:"_s + QString::number(localPort()); }

    QStringList heard;
};

// What `zelvor feed` prints, and its exit status.
std::pair<QString, int> runWith(const QStringList& arguments) {
    QString printed;
    QTextStream out(&printed);
    try {
        const int status = runFeed(arguments, out, out);
        return {printed, status};
    } catch (const UsageError& error) {
        return {error.text, UsageError::kExitStatus};
    }
}

}  // namespace

TEST(ClockSender, CountsDownAndUpToTheEnd) {
    const std::pair<QStringList, QString> cases[] = {
        {{u"--from"_s, u"0:02"_s}, u"t0:02t t0:01t t0:00t"_s},
        {{u"--up"_s, u"--from=59:58"_s, u"--jitter"_s}, u"t59:58t t59:59t t60:00t"_s},
        {{u"--up"_s, u"--down"_s, u"--from"_s, u"0:00"_s}, u"t0:00t"_s},
    };
    for (const auto& [arguments, heard] : cases) {
        Receiver receiver;
        const auto [printed, status] =
            runWith(arguments + QStringList{u"--speed"_s, u"200"_s, u"--to"_s, receiver.address()});
        EXPECT_EQ(status, 0);
        const auto count = heard.count(u' ') + 1;
        EXPECT_TRUE(printed.endsWith(QString::number(count) + u" datagrams sent\n"_s)) << printed.toStdString();
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
    const std::vector<std::pair<QStringList, QString>> cases{
        {{u"--to"_s, u"localhost"_s}, u"--to takes HOST:PORT, not localhost"_s},
        {{u"--from"_s, u"60:01"_s}, u"--from takes a clock from 0:00 to 60:00, not 60:01"_s},
        {{u"--speed"_s, u"nan"_s}, u"--speed takes a number above 0, up to 1000, not nan"_s},
        {{u"--speed"_s}, u"--speed takes a value"_s},
        {{u"--fast"_s}, u"unknown option --fast"_s},
        {{u"10:00"_s}, u"not understood: 10:00"_s},
    };
    for (const auto& [arguments, fault] : cases) {
        const auto [printed, status] = runWith(arguments);
        EXPECT_EQ(status, 2);
        EXPECT_EQ(printed, fault);
    }
}
