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
#include <array>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <string>
#include <thread>
#include <vector>

#include "engine/system_clock.h"
#include "feed/game_desk.h"
#include "link/graphics_links.h"
#include "unused_ports.h"

using namespace Qt::StringLiterals;
using namespace zelvor;

namespace {

using Moment = std::chrono::steady_clock::time_point;

sockaddr_in localAddress(quint16 port) {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(port);
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    return address;
}

// The graphics server: notes when the line of each number arrived.
class Peer {
 public:
    explicit Peer(int lines) : arrivals(static_cast<std::size_t>(lines)) {
        sockaddr_in address = localAddress(0);
        socklen_t size = sizeof address;
        if (bind(listener_, reinterpret_cast<sockaddr*>(&address), size) != 0 || listen(listener_, 1) != 0)
            qFatal("no local server");
        getsockname(listener_, reinterpret_cast<sockaddr*>(&address), &size);
        port = ntohs(address.sin_port);
        thread_ = std::thread([this] { receive(); });
    }
    Peer(const Peer&) = delete;
    Peer& operator=(const Peer&) = delete;
    ~Peer() { close(listener_); }
    void join() { thread_.join(); }

    quint16 port = 0;
    std::vector<Moment> arrivals;
    std::atomic<int> received = 0;

 private:
    void receive() {
        const int peer = accept(listener_, nullptr, nullptr);
        std::string rest;
        std::array<char, 65536> buffer{};
        for (ssize_t size = 0; (size = recv(peer, buffer.data(), buffer.size(), 0)) > 0;) {
            const Moment now = std::chrono::steady_clock::now();
            rest.append(buffer.data(), static_cast<std::size_t>(size));
            std::size_t start = 0;
            for (std::size_t end = 0; (end = rest.find('\n', start)) != std::string::npos; start = end + 1) {
                const std::size_t number = std::stoul(rest.substr(rest.find('"', start) + 1));
                arrivals.at(number) = now;
                ++received;
            }
            rest.erase(0, start);
        }
        close(peer);
    }

    int listener_ = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    std::thread thread_;
};

// Sends the numbers 0, 1, ... as clocks at an even pace, and notes when.
std::vector<Moment> sendClocks(quint16 port, int count, int rate) {
    // Written now, so that its pages do not look like a leak.
    std::vector<Moment> moments(static_cast<std::size_t>(count));
    const sockaddr_in address = localAddress(port);
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
    Unused unused;
    GraphicsLinks links(form, clock, program);
    CardEngine engine(state, form, program, Ports{unused, unused, links, links, unused, unused, clock});
    GameDesk desk(engine);
    state.variables.SetVar(u"@LANGUAGE", u"TT"_s);
    state.switches.AutoTimeCard = u"clock.qrd"_s;
    state.switches.IsTimeCard = true;

    Peer peer(count);
    links.link(LinkId::Main).connectTo(u"127.0.0.1"_s, QString::number(peer.port));
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
        if (peer.received == count || late) break;
    }
    sender.join();
    const long grown = residentKilobytes() - early;
    links.link(LinkId::Main).close();
    peer.join();

    std::vector<double> latencies;
    for (std::size_t i = 0; i < sent.size(); ++i) {
        if (peer.arrivals[i] != Moment{})
            latencies.push_back(std::chrono::duration<double, std::milli>(peer.arrivals[i] - sent[i]).count());
    }
    std::sort(latencies.begin(), latencies.end());
    const auto at = [&](double part) {
        return latencies.empty()
                   ? 0
                   : latencies[static_cast<std::size_t>(part * static_cast<double>(latencies.size() - 1))];
    };
    std::printf("%d datagrams at %d a second: %lld handled, %lld refused, %d lines on the wire, %zu lost\n", count,
                rate, static_cast<long long>(desk.feedStatus.handledCount()),
                static_cast<long long>(desk.feedStatus.refusedCount()), peer.received.load(),
                sent.size() - latencies.size());
    std::printf("from datagram to line, ms: median %.3f, 99 of 100 below %.3f, longest %.3f; memory grew by %ld KiB\n",
                at(0.5), at(0.99), at(1), grown);
    return latencies.size() == sent.size() && desk.feedStatus.refusedCount() == 0 ? 0 : 1;
}
