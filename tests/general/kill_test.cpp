#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QElapsedTimer>
#include <QThread>
#include <array>
#include <csignal>

#include "general_rules/general_variables.h"
#include "general_rules/selections.h"
#include "support/fake_ports.h"

namespace zelvor {

using namespace Qt::StringLiterals;

namespace {

using test::EngineBench;

// Kills a process in the middle of saving, many times: it saves the even state, the odd one and so on, and what it
// leaves behind must be one of the two, whole.
template <class Save>
void killWhileSaving(const QString& path, Save save) {
    constexpr int kKills = 100;
    const auto onDisk = [&] {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    };
    save(0);
    const QByteArray even = onDisk();
    QElapsedTimer timer;
    timer.start();
    save(1);
    const auto oneSave = static_cast<unsigned long>(timer.nsecsElapsed() / 1000);
    const QByteArray odd = onDisk();
    ASSERT_NE(even, odd);
    int changes = 0;
    QByteArray before = odd;
    for (int kill = 0; kill < kKills; ++kill) {
        std::array<int, 2> saved{};
        ASSERT_EQ(pipe(saved.data()), 0);
        const pid_t child = fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            save(0);
            if (write(saved[1], "", 1) != 1) _exit(1);
            for (int state = 1;; state = 1 - state) save(state);
        }
        close(saved[1]);
        char byte = 0;
        ASSERT_EQ(read(saved[0], &byte, 1), 1);
        close(saved[0]);
        // Everywhere in the next three saves, each of which begins a little later than the one before.
        QThread::usleep(oneSave * 3 * kill / kKills);
        ::kill(child, SIGKILL);
        ASSERT_EQ(waitpid(child, nullptr, 0), child);
        const QByteArray after = onDisk();
        ASSERT_TRUE(after == even || after == odd) << after.size() << " bytes after kill " << kill;
        changes += after != before ? 1 : 0;
        before = after;
    }
    EXPECT_GT(changes, 0) << "the children were killed before they saved anything";
}

TEST(Kill, SelectionsAreTheOldOrTheNew) {
    EngineBench bench;
    Selections selections(bench.engine);
    killWhileSaving(bench.folderOnDisk.filePath(u"MODULES/SELECTIONS.TXT"_s), [&](int state) {
        bench.form.at(controls.txtS5H, 0).setText(QString(state * 200'000, u'7'));
        selections.SaveSelections();
    });
}

TEST(Kill, GeneralVariablesAreTheOldOrTheNew) {
    EngineBench bench;
    GeneralVariables general(bench.state, bench.program, bench.operatorDesk);
    general.load();
    general.grid().append(std::vector<GeneralRow>(2000, {u"a"_s, u"Title"_s, u"@NAME"_s, u"Help"_s}));
    killWhileSaving(bench.folderOnDisk.filePath(u"MODULES/QRD_TT/infodata.dat"_s), [&](int state) {
        general.grid().setValue(1999, state == 0 ? u"a"_s : u"another"_s);
        general.save();
    });
}

}  // namespace
}  // namespace zelvor
