#include "general_rules/selections.h"

#include <gtest/gtest.h>

#include <QCoreApplication>

#include "engine/defaults.h"
#include "support/fake_ports.h"

namespace zelvor {

using namespace Qt::StringLiterals;

namespace {

using test::EngineBench;

// A console whose boxes are filled as the start-up fills them.
struct Desk : EngineBench {
    Desk() {
        const auto numbers = [](int last) {
            QList<Control::Item> items;
            for (int number = 1; number <= last; ++number) items += {QString::number(number), number};
            return items;
        };
        form.at(controls.cbQt).setItems(numbers(9));
        form.at(controls.cbQt).setPosition(0);
        for (Control* box : form.named(controls.cmbFADE)) {
            box->setItems(numbers(100));
            box->setPosition(9);
        }
        writeEffectDefaults(state);
    }
    QByteArray saved() const {
        QCoreApplication::processEvents();
        QFile file(folderOnDisk.filePath(u"MODULES/SELECTIONS.TXT"_s));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(none)");
    }

    Selections selections{engine};
};

TEST(Selections, SavesFromTheLoadOnAndFindsAllAgain) {
    Desk desk;
    desk.selections.LoadSelections();
    EXPECT_EQ(desk.saved(), "(none)") << "neither filling the boxes nor loading saves";
    desk.form.at(controls.cbQt).setPosition(2);
    desk.form.at(controls.cmbFADE, 0).setText(u"25"_s);
    desk.form.at(controls.cmbFADE, 1).setText({});
    desk.form.at(controls.cmbFADE, 2).setText(u"Off"_s);
    desk.form.at(controls.cmbFADE, 3).setText(u"2;x\r\ny"_s);
    desk.form.at(controls.txtS5H, 0).setText(u"12a"_s);
    desk.form.at(controls.txtS5H, 1).setText(u"07"_s);
    desk.form.at(controls.txtS5A, 4).setText(u"x"_s);
    EXPECT_EQ(desk.saved(),
              "2\r\n24\r\n-1\r\n-1;Off\r\n-1;2;x  y\r\n12a\r\n07\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\nx\r\n");

    Desk next;
    next.write(u"SELECTIONS.TXT"_s, desk.saved());
    next.selections.LoadSelections();
    EXPECT_EQ(next.saved(), desk.saved()) << "loading does not save";
    const VariableStore& variables = next.state.variables;
    EXPECT_EQ(variables.text(u"@FADE_OUT"), u"10") << "an empty box was saved: the default stays";
    EXPECT_EQ(next.form.at(controls.cmbFADE, 3).text(), u"2;x  y");
    EXPECT_EQ(next.form.at(controls.txtS5H, 0).text(), u"12");
    EXPECT_EQ(*variables.find(u"@S5H2"), Value(7.0));
    EXPECT_TRUE(next.operatorDesk.shown.isEmpty());
}

TEST(Selections, ABrokenFileIsOneMessageAndWhatWasReadStays) {
    // The file, its error and the line reached, and the positions of period and FADE OUT afterwards.
    const std::tuple<QByteArray, QString, QString, int, int> cases[]{
        {"3\r\n", u"62"_s, u"1"_s, 3, 9},
        {"", u"62"_s, u"0"_s, 0, 9},
        {" 3 \r\n 4 \r\n100\r\n5\r\n", u"380"_s, u"3"_s, 3, 9},
        {"9\r\n4\r\n4\r\n", u"380"_s, u"1"_s, 0, 9},
        {"3\r\n4\r\n8\r\nrubbish\r\n", u"13"_s, u"4"_s, 3, 8},
        {"3\r\n4\r\n8\r\n99999\r\n", u"6"_s, u"4"_s, 3, 8},
        {QByteArray(500, '\xFF'), u"13"_s, u"1"_s, 0, 9}};
    for (const auto& [bytes, error, line, period, fadeOut] : cases) {
        SCOPED_TRACE(bytes.left(40).toStdString());
        Desk desk;
        desk.write(u"SELECTIONS.TXT"_s, bytes);
        desk.selections.LoadSelections();
        ASSERT_EQ(desk.operatorDesk.shown.size(), 1);
        const QString& told = desk.operatorDesk.shown[0];
        EXPECT_TRUE(told.startsWith(u"Error "_s + error + u"\r\n")) << told.toStdString();
        EXPECT_TRUE(told.contains(u": SELECTIONS.TXT\r\n") && told.endsWith(u"\r\nLine "_s + line))
            << told.toStdString();
        EXPECT_EQ(desk.form.at(controls.cbQt).position(), period);
        EXPECT_EQ(desk.form.at(controls.cmbFADE, 1).position(), fadeOut);
        EXPECT_EQ(desk.form.at(controls.txtS5A, 4).text(), u"0");
    }
}

TEST(Selections, AFolderThatCannotBeWrittenIsReportedOnceUntilItCan) {
    Desk desk;
    desk.selections.LoadSelections();
    const QString modules = desk.folderOnDisk.filePath(u"MODULES"_s);
    const auto choose = [&desk](int period) {
        desk.form.at(controls.cbQt).setPosition(period);
        return desk.saved().left(1);
    };
    QDir(modules).removeRecursively();
    choose(1);
    choose(2);
    ASSERT_EQ(desk.operatorDesk.shown.size(), 1);
    EXPECT_TRUE(desk.operatorDesk.shown[0].startsWith(u"Error 76\r\n"));
    QDir().mkpath(modules);
    EXPECT_EQ(choose(3), "3");
    QDir(modules).removeRecursively();
    choose(4);
    EXPECT_EQ(desk.operatorDesk.shown.size(), 2);
}

TEST(Selections, ManyChangesAreOneSaveAlsoAtTheEnd) {
    Desk desk;
    desk.selections.LoadSelections();
    QDir(desk.folderOnDisk.filePath(u"MODULES"_s)).removeRecursively();
    for (int player = 0; player < 5; ++player) desk.form.at(controls.txtS5H, player).setText(u"7"_s);
    EXPECT_TRUE(desk.operatorDesk.shown.isEmpty()) << "not one by one";
    QDir().mkpath(desk.folderOnDisk.filePath(u"MODULES"_s));
    desk.program.closing.begin();
    QFile file(desk.folderOnDisk.filePath(u"MODULES/SELECTIONS.TXT"_s));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll().count("7\r\n"), 5);
}

}  // namespace
}  // namespace zelvor
