#include "postgres_server.h"

#include <pwd.h>
#include <sys/prctl.h>
#include <unistd.h>

#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QThread>
#include <csignal>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace zelvor::test {

namespace {

constexpr int kServerPatience = 60'000;  // milliseconds; on a busy machine too

// Debian keeps each version in a folder of its own.
QString postgresProgram(const QString& name) {
    const QDir versions(u"/usr/lib/postgresql"_s);
    for (const QString& version : versions.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name | QDir::Reversed)) {
        const QString path = versions.filePath(version + u"/bin/"_s + name);
        if (QFile::exists(path)) return path;
    }
    return {};
}

const passwd* ordinaryUser() {
    return geteuid() == 0 ? getpwnam("postgres") : nullptr;
}

}  // namespace

bool PostgresServer::isInstalled() {
    QFile drivers(u"/etc/odbcinst.ini"_s);
    return !postgresProgram(u"initdb"_s).isEmpty() && drivers.open(QIODevice::ReadOnly) &&
           drivers.readAll().contains("PostgreSQL Unicode");
}

void PostgresServer::prepare(QProcess& process) const {
    process.setWorkingDirectory(folder_.path());
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.setStandardOutputFile(folder_.filePath(u"log"_s), QIODevice::Append);
    process.setChildProcessModifier([user = ordinaryUser()] {
        if (user != nullptr && (setgid(user->pw_gid) != 0 || setuid(user->pw_uid) != 0)) _exit(1);
        // Ended with this program also when it crashes.
        prctl(PR_SET_PDEATHSIG, SIGQUIT);
    });
}

PostgresServer::PostgresServer() {
    const passwd* user = ordinaryUser();
    if (user != nullptr && chown(QFile::encodeName(folder_.path()).constData(), user->pw_uid, user->pw_gid) != 0)
        throw std::runtime_error("the folder cannot be given to the server");
    QProcess initdb;
    prepare(initdb);
    initdb.start(postgresProgram(u"initdb"_s), {u"-D"_s, folder_.filePath(u"data"_s), u"-U"_s, u"show"_s, u"-A"_s,
                                                u"trust"_s, u"-E"_s, u"UTF8"_s, u"--locale=C"_s, u"--no-sync"_s});
    if (!initdb.waitForFinished(kServerPatience) || initdb.exitCode() != 0) throw std::runtime_error("initdb failed");
    prepare(process_);
    start();
}

void PostgresServer::start() {
    process_.start(postgresProgram(u"postgres"_s), {u"-D"_s, folder_.filePath(u"data"_s), u"-k"_s, folder_.path(),
                                                    u"-h"_s, QString(), u"-c"_s, u"fsync=off"_s});
    QProcess ready;
    const QDeadlineTimer patience(kServerPatience);
    do {
        if (process_.state() == QProcess::NotRunning || patience.hasExpired())
            throw std::runtime_error("the PostgreSQL server did not start");
        QThread::msleep(50);
        ready.start(postgresProgram(u"pg_isready"_s), {u"-q"_s, u"-h"_s, folder_.path()});
    } while (!ready.waitForFinished(kServerPatience) || ready.exitCode() != 0);
}

void PostgresServer::kill() {
    if (process_.state() == QProcess::NotRunning) return;
    // Its children go with it.
    ::kill(static_cast<pid_t>(process_.processId()), SIGQUIT);
    process_.waitForFinished(kServerPatience);
}

QByteArray PostgresServer::connectionString() const {
    return "Driver=PostgreSQL Unicode;Server=" + QFile::encodeName(folder_.path()) +
           ";Port=5432;Database=postgres;Uid=show";
}

}  // namespace zelvor::test
