#include "troubles.h"

#include <sys/resource.h>

#include <QProcess>
#include <csignal>

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

constexpr int kSlowness = 50;  // milliseconds of work, and as many without

}  // namespace

Troubles::Troubles(ConsoleDesk& desk, MariaDbDemo& database, test::GraphicsPeer& peer)
    : desk_(desk), database_(database), peer_(peer) {
    slowness_.setInterval(kSlowness);
    connect(&slowness_, &QTimer::timeout, this, [this] { database_.freeze(frozen_ = !frozen_); });
}

Troubles::~Troubles() {
    if (lock_.joinable()) lock_.join();
}

bool Troubles::mayDropRoute() {
    return qEnvironmentVariableIsSet("ZELVOR_SOAK_IN_NAMESPACE");
}

void Troubles::dropRoute(bool dropped) {
    if (!mayDropRoute()) return;
    if (!dropped) peer_.stop(test::GraphicsPeer::End::Abrupt);
    if (!dropped && !peer_.start()) qFatal("the server's port is taken");
    for (const QString& direction : {u"--dport"_s, u"--sport"_s}) {
        const QStringList rule{u"OUTPUT"_s, u"-p"_s,  u"tcp"_s, direction, QString::number(peer_.port()),
                               u"-j"_s,     u"DROP"_s};
        if (QProcess::execute(u"iptables"_s, QStringList{dropped ? u"-A"_s : u"-D"_s} + rule) != 0)
            qFatal("the route cannot be changed");
    }
}

void Troubles::lockDatabase(int milliseconds) {
    if (lock_.joinable()) lock_.join();
    lock_ = std::thread([this, milliseconds] {
        const double seconds = milliseconds / 1000.0;
        static_cast<void>(
            database_.change("lock tables game write; select sleep(" + QByteArray::number(seconds) + ")"));
    });
}

void Troubles::slowDatabase(bool slow) {
    if (slow) return slowness_.start();
    slowness_.stop();
    if (frozen_) database_.freeze(frozen_ = false);
}

void Troubles::fillDisk(bool full) {
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit limit{};
    getrlimit(RLIMIT_FSIZE, &limit);
    limit.rlim_cur = full ? 1 : limit.rlim_max;
    setrlimit(RLIMIT_FSIZE, &limit);
}

void Troubles::resizeWindow() {
    QWidget& window = desk_.app().window();
    window.resize(window.width() + 120, window.height() + 60);
}

void Troubles::coverWindow(bool covered) {
    cover_.setGeometry(desk_.app().window().frameGeometry());
    cover_.setVisible(covered);
    if (!covered) desk_.app().window().activateWindow();
}

}  // namespace zelvor
