#include "mariadb_server.h"

#include <pwd.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QDeadlineTimer>
#include <QStandardPaths>
#include <QTcpServer>
#include <QThread>
#include <csignal>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace zelvor::test {

namespace {

constexpr int kPatience = 60'000;  // milliseconds; on a busy machine too

QString program(const QString& name) {
    const QString found = QStandardPaths::findExecutable(name);
    return found.isEmpty() ? u"/usr/sbin/"_s + name : found;
}

QString userName() {
    const passwd* entry = getpwuid(getuid());
    return entry == nullptr ? QString::number(getuid()) : QString::fromLocal8Bit(entry->pw_name);
}

bool run(const QString& name, const QStringList& arguments, const QByteArray& input = {}) {
    QProcess process;
    process.start(program(name), arguments);
    process.write(input);
    process.closeWriteChannel();
    return process.waitForFinished(kPatience) && process.exitStatus() == QProcess::NormalExit &&
           process.exitCode() == 0;
}

quint16 freePort() {
    QTcpServer probe;
    probe.listen(QHostAddress::LocalHost, 0);
    return probe.serverPort();
}

}  // namespace

MariaDbServer::MariaDbServer(QStringList options) : options_(std::move(options)), port_(freePort()) {
    if (!run(u"mariadb-install-db"_s,
             {u"--no-defaults"_s, u"--user="_s + userName(), u"--datadir="_s + inFolder(u"data"_s),
              u"--tmpdir="_s + folder_.path(), u"--auth-root-authentication-method=normal"_s, u"--skip-test-db"_s})) {
        throw std::runtime_error("mariadb-install-db failed: is mariadb-server installed?");
    }
    start();
    if (!execute("create database `show` character set utf8mb4; create user 'show'@'127.0.0.1' identified by 'time';"
                 "grant all on `show`.* to 'show'@'127.0.0.1'")) {
        throw std::runtime_error("the database could not be made");
    }
}

void MariaDbServer::beginStart() {
    process_.setProcessChannelMode(QProcess::MergedChannels);
    process_.setStandardOutputFile(inFolder(u"server.log"_s));
    // Ended with this program also when it crashes.
    process_.setChildProcessModifier([] { prctl(PR_SET_PDEATHSIG, SIGKILL); });
    process_.start(program(u"mariadbd"_s),
                   QStringList{u"--no-defaults"_s, u"--user="_s + userName(), u"--datadir="_s + inFolder(u"data"_s),
                               u"--tmpdir="_s + folder_.path(), u"--socket="_s + inFolder(u"s"_s),
                               u"--pid-file="_s + inFolder(u"pid"_s), u"--bind-address=127.0.0.1"_s,
                               u"--port=%1"_s.arg(port_), u"--skip-name-resolve"_s} +
                       options_);
}

void MariaDbServer::start() {
    beginStart();
    const QDeadlineTimer patience(kPatience);
    while (!execute("select 1")) {
        if (process_.state() == QProcess::NotRunning || patience.hasExpired()) {
            throw std::runtime_error("the MariaDB server did not start");
        }
        QThread::msleep(50);
    }
}

void MariaDbServer::kill() {
    if (process_.state() == QProcess::NotRunning) return;
    process_.kill();
    process_.waitForFinished(kPatience);
}

void MariaDbServer::freeze(bool frozen) {
    const auto pid = static_cast<pid_t>(process_.processId());
    ::kill(pid, frozen ? SIGSTOP : SIGCONT);
    // Its threads go on until one of them has had its turn to stop them all.
    siginfo_t stopped{};
    if (frozen) waitid(P_PID, static_cast<id_t>(pid), &stopped, WSTOPPED | WNOWAIT);
}

QByteArray MariaDbServer::connectionString() const {
    return "Driver={MariaDB Unicode};Server=127.0.0.1;Port=" + QByteArray::number(port_) +
           ";Database=show;User=show;Password=time;INITSTMT=set names 'utf8'";
}

bool MariaDbServer::execute(const QByteArray& sql) const {
    return run(u"mariadb"_s,
               {u"--no-defaults"_s, u"--default-character-set=utf8mb4"_s, u"-uroot"_s, u"-S"_s, inFolder(u"s"_s)}, sql);
}

}  // namespace zelvor::test
