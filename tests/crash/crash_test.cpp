#include <gtest/gtest.h>
#include <sys/prctl.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTcpServer>
#include <QTemporaryDir>
#include <QThread>
#include <csignal>

#include "crash/crash_dump.h"
#include "support/wait.h"
#include "system/termination.h"

using namespace Qt::StringLiterals;

namespace zelvor::test {

namespace {

// A program of the build, copied into a folder of its own, in which its dump is not mixed with others.
class ProgramEnd : public testing::Test {
 protected:
    void start(const QString& name, const QStringList& arguments) {
        const QString path = folder.filePath(name);
        ASSERT_TRUE(QFile::exists(path) || QFile::copy(QStringLiteral(PROGRAM_FOLDER "/") + name, path));
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"TMPDIR"_s, temporary.path());
        process.setProcessEnvironment(environment);
        process.setWorkingDirectory(folder.path());
        process.setChildProcessModifier([] { prctl(PR_SET_PDEATHSIG, SIGKILL); });
        process.start(path, arguments);
        ASSERT_TRUE(process.waitForStarted());
    }
    bool handles(int signal) const {
        QFile status(u"/proc/%1/status"_s.arg(process.processId()));
        if (!status.open(QIODevice::ReadOnly)) return false;
        const QByteArray bytes = status.readAll();
        const qsizetype mask = bytes.indexOf("SigCgt:\t") + 8;
        return (bytes.mid(mask, 16).toULongLong(nullptr, 16) >> (signal - 1) & 1) != 0;
    }
    // Sends it that signal as soon as the program would handle it.
    void send(int signal) {
        ASSERT_TRUE(waitUntil([&] { return handles(signal) || process.state() == QProcess::NotRunning; }));
        ASSERT_EQ(process.state(), QProcess::Running) << process.readAllStandardError().toStdString();
        kill(static_cast<pid_t>(process.processId()), signal);
    }
    // Waits for the program's end and gives what it has written there.
    QString dump(const QString& path) {
        EXPECT_TRUE(process.waitForFinished());
        EXPECT_EQ(process.exitStatus(), QProcess::CrashExit);
        EXPECT_TRUE(QString::fromLocal8Bit(process.readAllStandardError()).contains(u"the stack trace is in " + path));
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : u"no file"_s;
    }

    QTemporaryDir folder;
    QTemporaryDir temporary;
    QProcess process;
};

TEST_F(ProgramEnd, IsInOrderOnASignalAndLeavesADumpInItsFolderOnACrash) {
    const QString appFolder = temporary.path();
    QDir(appFolder).mkpath(u"MODULES/QRD_EN"_s);
    QFile packs(appFolder + u"/MODULES/PACKS.TXT"_s);
    ASSERT_TRUE(packs.open(QIODevice::WriteOnly) && packs.write("EN;Basketball\r\n") > 0 && packs.flush());
    QTcpServer server;
    ASSERT_TRUE(server.listen(QHostAddress::LocalHost));
    const QString address = u"127.0.0.1:%1"_s.arg(server.serverPort());
    const std::pair<QString, QStringList> programs[]{
        {u"zelvor"_s, {u"feed"_s, u"--to"_s, u"127.0.0.1:9"_s}},
        {u"zelvor-rehearsal"_s, {u"--amcp"_s, u"0"_s, u"--http"_s, u"0"_s, u"--templates"_s, appFolder}},
        {u"zelvor-cards"_s,
         {u"--app-folder"_s, appFolder, u"--feed-port"_s, u"0"_s, u"--main"_s, address, u"--connect"_s}},
    };
    for (const auto& [name, arguments] : programs) {
        for (const int signal : {SIGHUP, SIGTERM}) {
            start(name, arguments);
            // The console then goes on to its first question.
            EXPECT_TRUE(name != u"zelvor-cards" || server.waitForNewConnection(30000));
            send(signal);
            EXPECT_TRUE(process.waitForFinished());
            EXPECT_EQ(process.exitStatus(), QProcess::NormalExit) << name.toStdString() << ", " << signal;
            EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
        }
        if (!kDumpsCrashes) continue;
        start(name, arguments);
        send(SIGSEGV);
        const QString text = dump(folder.filePath(name) + u".dmp"_s);
        EXPECT_TRUE(text.startsWith(name + u' ')) << text.toStdString();
        EXPECT_TRUE(text.contains(u"SIGSEGV")) << text.toStdString();
        EXPECT_TRUE(text.contains(name + u'(')) << "a frame of the program's own:\n" << text.toStdString();
        EXPECT_EQ(process.exitCode(), SIGSEGV);
    }
}

TEST_F(ProgramEnd, ByASecondSignalIsAtOnce) {
    const auto end = [] {
        const Termination termination;
        raise(SIGTERM);
        raise(SIGHUP);  // belongs to the first
        QThread::msleep(600);
        raise(SIGINT);
    };
    EXPECT_EXIT(end(), testing::KilledBySignal(SIGINT), "");
}

TEST_F(ProgramEnd, DumpNamesTheExceptionAndSurvivesAFullStack) {
    if (!kDumpsCrashes) GTEST_SKIP() << "the sanitizer handles crashes itself";
    start(u"crashing"_s, {u"exception"_s});
    const QString path = folder.filePath(u"crashing.dmp"_s);
    EXPECT_TRUE(dump(path).contains(u"SIGABRT")) << "it stays the way an uncaught exception ends a program";
    start(u"crashing"_s, {u"recursion"_s});
    const QString both = dump(path);
    EXPECT_TRUE(both.contains(u"std::runtime_error: nobody catches this")) << both.toStdString();
    EXPECT_TRUE(both.contains(u"SIGSEGV")) << "appended\n" << both.toStdString();

    // Where nothing can be written beside the program.
    QFile::remove(path);
    QDir(folder.path()).mkdir(u"crashing.dmp"_s);
    start(u"crashing"_s, {u"exception"_s});
    EXPECT_TRUE(dump(temporary.filePath(u"crashing.dmp"_s)).contains(u"nobody catches this"));
}

}  // namespace

}  // namespace zelvor::test
