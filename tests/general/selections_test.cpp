#include "general_rules/selections.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QElapsedTimer>
#include <QThread>
#include <csignal>

#include "support/fake_ports.h"

namespace zelvor {

using namespace Qt::StringLiterals;

namespace {

using test::EngineBench;

// A console whose boxes are filled as the start-up fills them.
struct Desk : EngineBench {
    Desk() { fill(); }

    void fill() {
        const auto numbers = [](int last) {
            QList<Control::Item> items;
            for (int number = 1; number <= last; ++number) items += {QString::number(number), number};
            return items;
        };
        form.at(u"cbQt"_s).setItems(numbers(9));
        form.at(u"cbQt"_s).setPosition(0);
        for (Control* box : form.named(u"cmbFADE"_s)) {
            box->setItems(numbers(100));
            box->setPosition(9);
            state.variables.SetVar(u"@FADE_IN", u"10"_s);
        }
    }
    QByteArray saved() const {
        QFile file(folderOnDisk.filePath(u"MODULES/SELECTIONS.TXT"_s));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(none)");
    }

    Selections selections{engine, trap};
};

const QByteArray kDefaults = "0\r\n9\r\n9\r\n9\r\n9\r\n" + QByteArray("0\r\n").repeated(10);

TEST(Selections, SavesFromTheLoadOnAndFindsAllAgain) {
    Desk desk;
    desk.selections.LoadSelections();
    EXPECT_EQ(desk.saved(), "(none)") << "neither filling the boxes nor loading saves";
    EXPECT_EQ(desk.state.variables.text(u"@FADE_IN"), u"10");
    desk.form.at(u"cbQt"_s).setPosition(2);
    desk.form.at(u"cmbFADE"_s, 0).setText(u"25"_s);
    desk.form.at(u"cmbFADE"_s, 3).setText(u"Off"_s);
    desk.form.at(u"txtS5H"_s, 0).setText(u"12a"_s);
    desk.form.at(u"txtS5H"_s, 1).setText(u"07"_s);
    desk.form.at(u"txtS5A"_s, 4).setText(u"x"_s);
    EXPECT_EQ(desk.saved(), "2\r\n24\r\n9\r\n9\r\n-1\r\n12a\r\n07\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\nx\r\n");

    Desk next;
    next.write(u"SELECTIONS.TXT"_s, desk.saved());
    next.selections.LoadSelections();
    EXPECT_EQ(next.saved(), desk.saved()) << "loading does not save";
    const VariableStore& variables = next.state.variables;
    EXPECT_EQ(variables.text(u"@GAMEPERIOD"), u"3");
    EXPECT_EQ(variables.text(u"@FADE_IN"), u"25");
    EXPECT_EQ(variables.text(u"@WIPE"), u"10") << "a text that is no item keeps the default";
    EXPECT_EQ(next.form.at(u"txtS5H"_s, 0).text(), u"12");
    EXPECT_EQ(*variables.find(u"@S5H2"), Value(7.0));
    EXPECT_EQ(variables.text(u"@S5A5"), u"0");
    EXPECT_EQ(next.form.at(u"cmbFADE"_s, 0).position(), 24);
    EXPECT_TRUE(next.operatorDesk.shown.isEmpty());
}

TEST(Selections, ABrokenFileIsOneMessageAndWhatWasReadStays) {
    struct Case {
        QByteArray bytes;
        QString error;
        int period;  // position afterwards
        int fadeOut;
    };
    for (const Case& each : std::vector<Case>{{"3\r\n", u"62"_s, 3, 9},
                                              {"", u"62"_s, 0, 9},
                                              {" 3 \r\n 4 \r\n100\r\n5\r\n", u"380"_s, 3, 9},
                                              {"3\r\n4\r\n-2\r\n", u"380"_s, 3, 9},
                                              {"9\r\n4\r\n4\r\n", u"380"_s, 0, 9},
                                              {"3\r\n4\r\n8\r\nrubbish\r\n", u"13"_s, 3, 8},
                                              {"3\r\n4\r\n8\r\n99999\r\n", u"6"_s, 3, 8},
                                              {QByteArray(500, '\xFF'), u"13"_s, 0, 9}}) {
        SCOPED_TRACE(each.bytes.left(40).toStdString());
        Desk desk;
        desk.write(u"SELECTIONS.TXT"_s, each.bytes);
        desk.selections.LoadSelections();
        ASSERT_EQ(desk.operatorDesk.shown.size(), 1);
        EXPECT_TRUE(desk.operatorDesk.shown[0].startsWith(u"Error "_s + each.error + u"\r\n"))
            << desk.operatorDesk.shown[0].toStdString();
        EXPECT_EQ(desk.form.at(u"cbQt"_s).position(), each.period);
        EXPECT_EQ(desk.form.at(u"cmbFADE"_s, 1).position(), each.fadeOut);
        EXPECT_EQ(desk.form.at(u"txtS5A"_s, 4).text(), u"0");
    }
}

TEST(Selections, AFolderThatCannotBeWrittenIsReported) {
    Desk desk;
    QDir(desk.folderOnDisk.filePath(u"MODULES"_s)).removeRecursively();
    desk.selections.SaveSelections();
    ASSERT_EQ(desk.operatorDesk.shown.size(), 1);
    EXPECT_TRUE(desk.operatorDesk.shown[0].startsWith(u"Error 76\r\n"));
}

TEST(Selections, AKillInTheMiddleOfASaveLeavesTheOldOrTheNew) {
    constexpr int kKills = 60;
    Desk desk;
    desk.selections.SaveSelections();
    const QByteArray one = desk.saved();
    ASSERT_EQ(one, kDefaults);
    desk.form.at(u"txtS5H"_s, 0).setText(QString(20000, u'7'));
    desk.selections.SaveSelections();
    const QByteArray other = desk.saved();
    int changes = 0;
    QByteArray before = other;
    for (int i = 0; i < kKills; ++i) {
        const pid_t child = fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            for (;;) {
                desk.form.at(u"txtS5H"_s, 0).setText(u"0"_s);
                desk.selections.SaveSelections();
                desk.form.at(u"txtS5H"_s, 0).setText(QString(20000, u'7'));
                desk.selections.SaveSelections();
            }
        }
        QThread::usleep(1500 + 137 * i % 2000);
        kill(child, SIGKILL);
        ASSERT_EQ(waitpid(child, nullptr, 0), child);
        const QByteArray after = desk.saved();
        ASSERT_TRUE(after == one || after == other) << after.size() << " bytes";
        changes += after != before ? 1 : 0;
        before = after;
    }
    EXPECT_GT(changes, 0) << "the children were killed before they saved anything";
}

}  // namespace
}  // namespace zelvor
