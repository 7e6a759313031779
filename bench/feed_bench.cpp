// The game feed under load: datagrams to the console's socket, an armed time card, the line on a local graphics server.
// usage: feed_bench [SECONDS [DATAGRAMS_A_SECOND]]

#include <arpa/inet.h>
#include <sys/socket.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTimer>
#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <string>
#include <thread>
#include <vector>

#include "engine/system_clock.h"
#include "feed/game_desk.h"
#include "link/graphics_links.h"
#include "support/graphics_peer.h"
#include "support/unused_ports.h"

using namespace Qt::StringLiterals;
using namespace zelvor;

namespace {

using Moment = std::chrono::steady_clock::time_point;

// When the line of each number arrived at the graphics server.
struct Arrivals {
    explicit Arrivals(int lines) : moments(static_cast<std::size_t>(lines)) {}
    void note(std::string_view line) {
        moments.at(std::stoul(std::string(line.substr(line.find('"') + 1)))) = std::chrono::steady_clock::now();
        ++received;
    }

    std::vector<Moment> moments;
    std::atomic<int> received = 0;
};

// Sends the numbers 0, 1, ... as clocks at an even pace, and notes when.
std::vector<Moment> sendClocks(quint16 port, int count, int rate) {
    // Written now, so that its pages do not look like a leak.
    std::vector<Moment> moments(static_cast<std::size_t>(count));
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(port);
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    const int sender = socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0);
    const Moment start = std::chrono::steady_clock::now();
    for (int i = 0; i < count; ++i) {
        std::this_thread::sleep_until(start + std::chrono::nanoseconds(1'000'000'000LL * i / rate));
        const QByteArray datagram = 't' + QByteArray::number(i) + 't';
        moments[static_cast<std::size_t>(i)] = std::chrono::steady_clock::now();
        sendto(sender, datagram.constData(), static_cast<std::size_t>(datagram.size()), 0,
               reinterpret_cast<const sockaddr*>(&address), sizeof address);
    }
    close(sender);
    return moments;
}

long residentKilobytes() {
    QFile status(u"/proc/self/statm"_s);
    if (!status.open(QIODevice::ReadOnly)) return 0;
    return status.readAll().split(' ').value(1).toLong() * (sysconf(_SC_PAGESIZE) / 1024);
}

}  // namespace

int main(int argc, char* argv[]) {
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const int rate = arguments.size() > 2 ? arguments[2].toInt() : 1000;
    const int count = rate * (arguments.size() > 1 ? arguments[1].toInt() : 5);
    if (count <= 0) qFatal("usage: feed_bench [SECONDS [DATAGRAMS_A_SECOND]]");

    const QTemporaryDir folderOnDisk;
    QDir(folderOnDisk.path()).mkpath(u"MODULES/QRD_TT"_s);
    {
        QFile card(folderOnDisk.filePath(u"MODULES/QRD_TT/clock.csp"_s));
        if (!card.open(QIODevice::WriteOnly)) qFatal("no card");
        card.write("FUNCTIONCARD\nCSPSEND~CG 1-20 INVOKE 1 '{@TIMERNUMBER}'\n");
    }
    ShowState state;
    FormModel form;
    Program program{AppFolder(folderOnDisk.path()), {}, ErrorTrap(folderOnDisk.filePath(u"errors.log"_s))};
    SystemClock clock(program.closing);
    test::Unused unused;
    GraphicsLinks links(form, clock, program);
    CardEngine engine(state, form, program, Ports{unused, unused, links, links, unused, unused, clock});
    GameDesk desk(engine);
    state.variables.SetVar(u"@LANGUAGE", u"TT"_s);
    state.switches.AutoTimeCard = u"clock.qrd"_s;
    state.switches.IsTimeCard = true;

    Arrivals arrivals(count);
    test::GraphicsPeer peer({[] {}, [&](std::string_view line) { arrivals.note(line); }});
    if (!peer.start()) qFatal("no local server");
    links.link(LinkId::Main).connectTo(u"127.0.0.1"_s, QString::number(peer.port()));
    while (links.state(LinkId::Main) != Graphics::kConnected)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    if (!desk.feedSocket.bind(0)) qFatal("no feed");

    long early = 0;
    const auto taken = [&] { return desk.feedStatus.handledCount() + desk.feedStatus.refusedCount(); };
    std::vector<Moment> sent;
    std::atomic<bool> allSent = false;
    std::thread sender([&, port = desk.feedSocket.port()] {
        sent = sendClocks(port, count, rate);
        allSent = true;
    });
    Moment lastSent{};
    QTimer alarm;
    alarm.start(10);
    while (true) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        if (early == 0 && taken() > count / 10) early = residentKilobytes();
        if (allSent && lastSent == Moment{}) lastSent = std::chrono::steady_clock::now();
        const bool late = allSent && std::chrono::steady_clock::now() - lastSent > std::chrono::seconds(5);
        if (arrivals.received == count || late) break;
    }
    sender.join();
    const long grown = residentKilobytes() - early;
    links.link(LinkId::Main).close();

    std::vector<double> latencies;
    for (std::size_t i = 0; i < sent.size(); ++i) {
        if (arrivals.moments[i] != Moment{})
            latencies.push_back(std::chrono::duration<double, std::milli>(arrivals.moments[i] - sent[i]).count());
    }
    std::sort(latencies.begin(), latencies.end());
    const auto at = [&](double part) {
        return latencies.empty()
                   ? 0
                   : latencies[static_cast<std::size_t>(part * static_cast<double>(latencies.size() - 1))];
    };
    std::printf("%d datagrams at %d a second: %lld handled, %lld refused, %d lines on the wire, %zu lost\n", count,
                rate, static_cast<long long>(desk.feedStatus.handledCount()),
                static_cast<long long>(desk.feedStatus.refusedCount()), arrivals.received.load(),
                sent.size() - latencies.size());
    std::printf("from datagram to line, ms: median %.3f, 99 of 100 below %.3f, longest %.3f; memory grew by %ld KiB\n",
                at(0.5), at(0.99), at(1), grown);
    return latencies.size() == sent.size() && desk.feedStatus.refusedCount() == 0 ? 0 : 1;
}
