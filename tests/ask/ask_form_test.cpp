#include "ask_dialog/ask_form.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include "pick_list_fixture.h"

using namespace Qt::StringLiterals;

namespace zelvor::test {
namespace {

class AskForm : public testing::Test {
 protected:
    // Opens the form and calls `act` with its list once it is shown.
    void open(std::function<void(QListWidget&)> act) {
        QTimer::singleShot(0, &console, [&] {
            form = QApplication::activeModalWidget();
            ASSERT_NE(form, nullptr);
            act(*form->findChild<QListWidget*>(u"lstASK"_s));
        });
        AskFormDialog dialog(bench.state, bench.rowsDatabase, bench.program);
        dialog.setWindow(console);
        dialog.show({});
        EXPECT_EQ(bench.state.ask.ASK_OPEN, 0);
    }

    AskBench bench;
    QWidget console;
    QWidget* form = nullptr;
};

TEST_F(AskForm, answersByKeyboardAndMouse) {
    bench.rowsDatabase.fill({u"Άρης"_s, u"Βασίλης"_s, u"Γιώργος"_s});
    const std::tuple<const char*, std::function<void(QListWidget&)>, QString> cases[]{
        {"letter and Enter",
         [](QListWidget& list) {
             QTest::sendKeyEvent(QTest::Click, &list, Qt::Key_unknown, u"β"_s, {});
             EXPECT_EQ(list.currentRow(), 1);
             QTest::keyClick(&list, Qt::Key_Return);
         },
         u"101"_s},
        {"double-click",
         [](QListWidget& list) {
             const QPoint place = list.visualItemRect(list.item(2)).center();
             QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, place);
             QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, place);
         },
         u"102"_s},
        {"Cancel", [&](QListWidget&) { form->findChild<QPushButton*>(u"cmdCANCEL"_s)->click(); }, u"-1"_s},
        {"window closed", [&](QListWidget&) { form->close(); }, u"-1"_s},
        {"program closing", [&](QListWidget&) { bench.program.closing.begin(); }, u"-1"_s},
        {"program has closed", {}, u"-1"_s},
    };
    for (const auto& [what, act, result] : cases) {
        SCOPED_TRACE(what);
        bench.state.ask.ASK_CANCELLED = 0;
        if (act) {
            open(act);
        } else {
            AskFormDialog(bench.state, bench.rowsDatabase, bench.program).show({});
        }
        EXPECT_EQ(bench.state.ask.ASK_RESULT, result);
        EXPECT_EQ(bench.state.ask.ASK_CANCELLED, result == u"-1" ? -1 : 0);
    }
}

TEST_F(AskForm, saysHowManyRowsThereAreAndShowsTwenty) {
    QStringList names;
    for (int i = 0; i < 60; ++i) names += u"Row %1 "_s.arg(i) + QString(i == 7 ? 300 : 1, u'w');
    bench.rowsDatabase.fill(names);
    open([&](QListWidget& list) {
        EXPECT_EQ(form->windowTitle(), u"Player"_s);
        EXPECT_TRUE(form->findChild<QLabel*>()->text().startsWith(u"60 rows: type a name"_s));
        EXPECT_LE(list.visualItemRect(list.item(19)).bottom(), list.viewport()->height());
        EXPECT_GT(list.visualItemRect(list.item(20)).bottom(), list.viewport()->height());
        form->close();
    });
}

TEST_F(AskForm, isAsWideAsItsLongestRow) {
    const std::pair<int, bool> cases[]{{10, true}, {45, true}, {5000, false}};
    for (const auto& [characters, whole] : cases) {
        bench.rowsDatabase.fill({u"Smith"_s, QString(u'm').repeated(characters), u"Jones"_s});
        open([&, whole = whole](QListWidget& list) {
            EXPECT_EQ(list.sizeHintForColumn(0) <= list.viewport()->width(), whole) << form->width();
            EXPECT_GE(form->width(), 460);
            EXPECT_LT(form->width(), form->screen()->availableSize().width());
            form->close();
        });
    }
}

TEST_F(AskForm, canBeCancelledWhenTheQueryFails) {
    bench.rowsDatabase.fails = true;
    open([&](QListWidget& list) {
        EXPECT_EQ(list.count(), 0);
        QTest::keyClick(&list, Qt::Key_Return);
        EXPECT_EQ(QApplication::activeModalWidget(), form);
        QTest::keyClick(&list, Qt::Key_Escape);
    });
    EXPECT_EQ(bench.operatorDesk.shown.size(), 1);
    EXPECT_EQ(bench.state.ask.ASK_CANCELLED, -1);
}

}  // namespace
}  // namespace zelvor::test
