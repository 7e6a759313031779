#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QTableView>
#include <QTest>
#include <QTimer>

#include "general_forms/form_list.h"
#include "general_forms/general_form.h"
#include "general_forms/variables_box.h"
#include "support/fake_ports.h"

namespace zelvor {

using namespace Qt::StringLiterals;

namespace {

class GeneralFormTest : public testing::Test {
 protected:
    GeneralFormTest() {
        bench.write(u"QRD_TT/infodata.dat"_s,
                    "zelvor-grid 1\nplain\tTitle\t@PLAIN\tFirst help\nON:ON|OFF\tLogo\t@LOGO\tSecond help\n"
                    "[folder]/old\tClips\t@CLIPS\t\n[file]\tPicture\t@PICTURE\t\n");
        general.load();
        general.apply();
        forms.setConsole(console);
        forms.add(form);
        forms.show(u"frmGENERAL"_s);
    }
    void SetUp() override { ASSERT_TRUE(QTest::qWaitForWindowActive(&form)); }

    QModelIndex cell(int row, int column = 0) { return view->model()->index(row, column); }
    void pressCellButton(int row) {
        const QRect area = ValueDelegate::buttonArea(view->visualRect(cell(row)), cell(row));
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, area.center());
    }
    template <class Widget>
    Widget* find(const char* name) {
        return form.findChild<Widget*>(QString::fromLatin1(name));
    }
    void click(const char* name) { QTest::mouseClick(find<QPushButton>(name), Qt::LeftButton); }
    QString variable(QStringView name) { return bench.state.variables.text(name); }

    test::EngineBench bench;
    GeneralVariables general{bench.state, bench.program, bench.operatorDesk};
    Pickers pickers{bench.program.closing};
    GeneralForm form{general, bench.operatorDesk, pickers};
    QWidget console;
    FormList forms{bench.program.closing};
    QTableView* view = find<QTableView>("vsDATA");
};

TEST_F(GeneralFormTest, ValuesAreEditedInPlaceSavedAndApplied) {
    view->setFocus();
    view->setCurrentIndex(cell(0, 2));
    QTest::keyClick(view, Qt::Key_Return);
    auto* editor = qobject_cast<QLineEdit*>(view->indexWidget(cell(0)));
    ASSERT_NE(editor, nullptr);
    editor->selectAll();
    QTest::keyClicks(editor, u"typed"_s);
    click("cmdSAVE");
    EXPECT_EQ(general.grid().text(0, 0), u"typed") << "saving takes what is being typed";
    EXPECT_EQ(find<QLabel>("lblMARKS")->text(), u"1 row not applied");
    click("cmdAPPLY");
    EXPECT_EQ(variable(u"@PLAIN"), u"typed");

    for (int column = 1; column < general_column::kCount; ++column) {
        view->setCurrentIndex(cell(0, column));
        QTest::keyClicks(view, u"x"_s);
        EXPECT_EQ(view->indexWidget(cell(0, column)), nullptr) << column;
    }
    EXPECT_EQ(find<QLabel>("lblHELP")->text(), u"First help");
    EXPECT_EQ(cell(1).data(Qt::ToolTipRole), u"Second help"_s);
}

TEST_F(GeneralFormTest, ChoicesDropDown) {
    pressCellButton(1);
    auto* list = qobject_cast<QComboBox*>(view->indexWidget(cell(1)));
    ASSERT_NE(list, nullptr);
    EXPECT_EQ(list->currentText(), u"ON");
    QTest::keyClick(list->view(), Qt::Key_Down);
    QTest::keyClick(list->view(), Qt::Key_Return);
    EXPECT_EQ(view->indexWidget(cell(1)), nullptr) << "a choice ends the editing";
    click("cmdAPPLY");
    EXPECT_EQ(general.grid().text(1, 0), u"OFF:ON|OFF");
    EXPECT_EQ(variable(u"@LOGO"), u"OFF");
}

TEST_F(GeneralFormTest, FoldersAndFilesArePicked) {
    pickers.setNextAnswer(u"C:\\clips"_s);
    pressCellButton(2);
    EXPECT_EQ(general.grid().text(2, 0), u"[folder]C:/clips");
    pickers.setNextAnswer(u" /pictures/a b.png "_s);
    view->setFocus();
    view->setCurrentIndex(cell(3));
    QTest::keyClick(view, Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(general.grid().text(3, 0), u"[file]/pictures/a b.png");

    QTimer::singleShot(0, &form, [this] { bench.program.closing.begin(); });
    EXPECT_EQ(pickers.SelectFolder(&form), u"");
}

TEST_F(GeneralFormTest, RowsLoadedWhileAPickerIsOpenAreLeftAlone) {
    QTimer::singleShot(0, &form, [this] {
        general.load();
        pickers.setNextAnswer(u"/late"_s);
        QApplication::activeModalWidget()->findChild<QLineEdit*>()->setText(bench.folderOnDisk.path());
        qobject_cast<QDialog*>(QApplication::activeModalWidget())->accept();
    });
    pressCellButton(2);
    EXPECT_EQ(general.grid().text(2, 0), u"[folder]/old");
}

TEST_F(GeneralFormTest, TheSearchKeepsWhatMatchesAnyColumn) {
    for (const auto& [text, rows] :
         {std::pair{u"@lo"_s, 1}, {u"HELP"_s, 2}, {u"on"_s, 1}, {u"folder"_s, 0}, {u""_s, 4}}) {
        find<QLineEdit>("txtSEARCH")->setText(text);
        EXPECT_EQ(view->model()->rowCount(), rows) << text.toStdString();
    }
    find<QLineEdit>("txtSEARCH")->setText(u"clips"_s);
    pickers.setNextAnswer(u"/found"_s);
    pressCellButton(0);
    EXPECT_EQ(general.grid().text(2, 0), u"[folder]/found") << "the row that is shown, not the first one";
}

TEST_F(GeneralFormTest, TheChosenRowsAreRemoved) {
    find<QLineEdit>("txtSEARCH")->setText(u"help"_s);
    view->selectRow(1);
    click("cmdREMOVEROW");
    EXPECT_EQ(bench.operatorDesk.shown, QStringList{u"General Vars|Remove Logo @LOGO?"_s});
    find<QLineEdit>("txtSEARCH")->clear();
    EXPECT_EQ(view->model()->rowCount(), 3);
    EXPECT_EQ(find<QLabel>("lblMARKS")->text(), u"1 row removed but not saved");
    view->clearSelection();
    click("cmdREMOVEROW");
    EXPECT_EQ(bench.operatorDesk.shown.size(), 1) << "nothing is chosen";
}

TEST_F(GeneralFormTest, ClosingByHandAsksAboutUnsavedRows) {
    bench.operatorDesk.answers = {u"@NEW"_s, u"Title"_s, u"Help"_s};
    click("cmdADDROW");
    EXPECT_EQ(general.grid().rows().back(), (GeneralRow{u""_s, u"Title"_s, u"@NEW"_s, u"Help"_s}));
    bench.operatorDesk.shown.clear();
    bench.operatorDesk.answerYes = false;
    QTest::keyClick(&form, Qt::Key_Escape);
    EXPECT_TRUE(IsFormOpen(forms, u"frmGENERAL"_s));
    EXPECT_EQ(bench.operatorDesk.shown.size(), 1);
    forms.close(u"frmGENERAL"_s);
    EXPECT_FALSE(IsFormOpen(forms, u"frmGENERAL"_s));
    EXPECT_EQ(bench.operatorDesk.shown.size(), 1) << "the program closes it without asking";
    forms.show(u"frmGENERAL"_s);
    bench.operatorDesk.answerYes = true;
    form.close();
    EXPECT_FALSE(IsFormOpen(forms, u"frmGENERAL"_s));
}

TEST(FormList, StandsBesideTheConsoleWhereThereIsRoom) {
    QWidget console;
    QWidget form;
    form.setObjectName(u"form"_s);
    form.resize(150, 100);
    const QRect screen = console.screen()->availableGeometry();
    for (const QRect& taken : {screen.adjusted(0, 0, -200, 0), screen.adjusted(200, 0, 0, 0), screen}) {
        console.setGeometry(taken);
        console.show();
        Closing closing;
        FormList forms{closing};
        forms.setConsole(console);
        forms.add(form);
        form.setAttribute(Qt::WA_Moved, false);
        forms.show(u"form"_s);
        EXPECT_EQ(form.geometry().intersects(taken), taken == screen);
        constexpr QMargins kFrame(0, 0, 0, 20);  // the window manager's, which the full console does not show
        EXPECT_TRUE(screen.contains(form.geometry() + kFrame));
        form.move(screen.topLeft());
        forms.close(u"form"_s);
        forms.show(u"form"_s);
        EXPECT_EQ(form.pos(), screen.topLeft()) << "where it was moved to";
        closing.begin();
        EXPECT_FALSE(form.isVisible());
    }
}

TEST(VariablesBox, ShowsCopiesAndSearches) {
    VariablesBox box;
    const QString text = u"Stored Variables (pasted to clipboard)\r\n@A = 1\r\n@Bee = 2\r\n"_s;
    box.setText(text);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), text);
    auto* view = box.findChild<QPlainTextEdit*>(u"txtVARS"_s);
    EXPECT_EQ(view->toPlainText().count(u'\n'), 2);
    box.findChild<QLineEdit*>(u"txtSEARCH"_s)->setText(u"bee"_s);
    EXPECT_EQ(view->toPlainText(), u"Stored Variables (pasted to clipboard)\n@Bee = 2");
    QTest::mouseClick(box.findChild<QPushButton*>(u"cmdCOPY"_s), Qt::LeftButton);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), view->toPlainText());
}

}  // namespace
}  // namespace zelvor
