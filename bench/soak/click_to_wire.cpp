// From the click on a card button to the bytes at the graphics server, for a card of 40 fields without a pause; the
// memory over many fires of that card; the idle console's processor time.
// usage: click_to_wire [FIRES [IDLE_SECONDS]]    100000 and 10 without

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QThread>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <ctime>
#include <vector>

#include "console/theme.h"
#include "soak_desk/console_desk.h"
#include "support/graphics_peer.h"

using namespace Qt::StringLiterals;
using namespace zelvor;

namespace {

using Moment = std::chrono::steady_clock::time_point;

constexpr int kFields = 40;
constexpr int kMeasured = 1000;
constexpr int kButton = 20;
constexpr long kMemoryAllowed = 1024;  // KiB

// The lines that have arrived and when the newest did.
struct Arrivals {
    std::atomic<Moment> newest{};
    std::atomic<int> count = 0;

    [[nodiscard]] bool reach(int wanted) const {
        const QDeadlineTimer deadline(5000);
        while (count < wanted && !deadline.hasExpired()) QThread::yieldCurrentThread();
        return count >= wanted;
    }
};

void addCard(const ConsoleDesk& desk) {
    QByteArray card = "CLEARDATA\r\n";
    for (int i = 1; i <= kFields; ++i) {
        const QByteArray number = QByteArray::number(i);
        card += "SDATA~FIELD" + number + ";" +
                (i % 4 == 0 ? QByteArray("{@GREENSCOREA}") : "Value of field " + number) + "\r\n";
    }
    card += "MAKEXML\r\nCSPSEND~CG !!POC!!-20 UPDATE 1 '{@CASPARXML}'\r\n";
    desk.write(u"MODULES/QRD_EN/fields40.csp"_s, card);
    const QString table = u"MODULES/QRD_EN/CARDS.TXT"_s;
    QByteArray cards = desk.read(table);
    const QByteArray replaced = "Graphic off,graphic_off.csp";
    cards.replace(cards.indexOf(replaced), replaced.size(), "Forty fields,fields40.csp");
    desk.write(table, cards);
}

double processorSeconds() {
    return static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
}

void idle(double seconds) {
    QEventLoop loop;
    QTimer::singleShot(static_cast<int>(seconds * 1000), &loop, &QEventLoop::quit);
    loop.exec();
}

void measureIdle(double seconds) {
    idle(2);
    const double before = processorSeconds();
    idle(seconds);
    const double used = processorSeconds() - before;
    std::printf("idle console: %.0f ms of processor time in %.0f s (%.2f %% of one core)\n", used * 1000, seconds,
                used / seconds * 100);
}

bool measureLatency(const ConsoleDesk& desk, const Arrivals& arrivals) {
    std::vector<double> milliseconds;
    for (int i = 0; i < kMeasured; ++i) {
        const int wanted = arrivals.count + 1;
        const Moment clicked = std::chrono::steady_clock::now();
        desk.click("cmbCARD", kButton);
        if (!arrivals.reach(wanted)) {
            std::printf("WRONG the card did not reach the server\n");
            return false;
        }
        milliseconds.push_back(std::chrono::duration<double, std::milli>(arrivals.newest.load() - clicked).count());
        // The next click comes when all is painted, as an operator's does.
        while (QAbstractEventDispatcher::instance()->processEvents(QEventLoop::AllEvents)) continue;
    }
    std::sort(milliseconds.begin(), milliseconds.end());
    const auto at = [&](double part) { return milliseconds[static_cast<std::size_t>(part * (kMeasured - 1))]; };
    std::printf("from click to wire, %d fields, ms: median %.3f, 99 of 100 below %.3f, longest %.3f\n", kFields,
                at(0.5), at(0.99), at(1));
    return true;
}

bool measureMemory(const ConsoleDesk& desk, const Arrivals& arrivals, int fires) {
    const int first = arrivals.count;
    long early = 0;
    const Moment start = std::chrono::steady_clock::now();
    for (int i = 0; i < fires; ++i) {
        if (i == fires / 10) early = residentKilobytes();
        desk.click("cmbCARD", kButton);
        QCoreApplication::processEvents();
    }
    const double seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    const long late = residentKilobytes();
    std::printf("%d fires in %.1f s: memory, KiB: %ld after a tenth, %ld at the end (%.3f times)\n", fires, seconds,
                early, late, static_cast<double>(late) / static_cast<double>(early));
    if (!arrivals.reach(first + fires)) {
        std::printf("WRONG %d lines of %d arrived\n", arrivals.count - first, fires);
        return false;
    }
    if (late - early > kMemoryAllowed) std::printf("WRONG memory grew by %ld KiB\n", late - early);
    return late - early <= kMemoryAllowed;
}

}  // namespace

int main(int argc, char* argv[]) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    std::setvbuf(stdout, nullptr, _IOLBF, 0);
    const QStringList arguments = QApplication::arguments();
    const int fires = arguments.size() > 1 ? arguments[1].toInt() : 100'000;
    const double idleSeconds = arguments.size() > 2 ? arguments[2].toDouble() : 10;
    if (fires < 10 || idleSeconds <= 0) {
        std::fprintf(stderr, "usage: click_to_wire [FIRES [IDLE_SECONDS]]\n");
        return 2;
    }
    theme::prepare(application);
    theme::apply(application);
    const SqliteDemo database;
    ConsoleDesk desk(database);
    addCard(desk);
    desk.start();
    Arrivals arrivals;
    test::GraphicsPeer peer({[] {},
                             [&](std::string_view) {
                                 arrivals.newest = std::chrono::steady_clock::now();
                                 ++arrivals.count;
                             }});
    if (!peer.start()) qFatal("no local server");
    desk.connectMain(peer.port());
    desk.click("GradientButtonS", 0);

    measureIdle(idleSeconds);
    const bool good = measureLatency(desk, arrivals) && measureMemory(desk, arrivals, fires);
    desk.app().window().close();
    return good ? 0 : 1;
}
