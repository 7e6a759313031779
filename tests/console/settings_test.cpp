#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QComboBox>
#include <QMenu>
#include <QPlainTextEdit>

#include "gallery.h"

using namespace Qt::StringLiterals;

namespace zelvor::test {

// The console with two packs.
class SettingsTest : public testing::Test {
 protected:
    SettingsTest() {
        gallery.writePack({"First,first.csp", "Waits,waits.csp"}, "FKEYS:1|First key|first.csp\r\n");
        gallery.writeCard("waits", "DELAY~1\r\nSETVAR~@AFTER;{@LANGUAGE}");
        gallery.write(u"QRD_EN/infodata.dat"_s, "zelvor-grid 1\nHello\tGreeting\t@GREETING\t\n");
        QDir(gallery.folder.path()).mkpath(u"MODULES/QRD_GR"_s);
        gallery.write(u"PACKS.TXT"_s, "EN;English\r\nGR;Greek\r\n");
        gallery.write(u"QRD_GR/CARDS.TXT"_s,
                      "FKEYS:1|Κλειδί|x.csp\r\nSETNO:1,Game\r\nΠρώτη,x.csp\r\n" + QByteArray(",\r\n").repeated(20));
        gallery.write(u"QRD_GR/GetGame.csp"_s, "FUNCTIONCARD\r\nSETVAR~@HTLNAMEEN;Λιμάνι\r\n");
        gallery.write(u"QRD_GR/infodata.dat"_s, "zelvor-grid 1\nΓεια\tGreeting\t@GREETING\t\n");
    }
    QString variable(QStringView name) { return gallery.app->state().variables.text(name); }
    bool isOpen(const char* form) { return gallery.form(form)->isVisible(); }
    QAction* item(const char* name) { return gallery.app->window().findChild<QAction*>(QString::fromLatin1(name)); }

    Gallery gallery;
};

// Everything that is kept differs from what was kept before, and all of it comes back.
TEST_F(SettingsTest, SelectionsAreFoundAgainAfterARestart) {
    const QStringList effects{u"@FADE_IN"_s, u"@FADE_OUT"_s, u"@ROLL_SPEED"_s, u"@WIPE"_s};
    const auto kept = [&] {
        QStringList all{gallery.find<QComboBox>("cbQt")->currentText() + u'=' + variable(u"@GAMEPERIOD")};
        for (int i = 0; i < 4; ++i)
            all += gallery.find<QComboBox>("cmbFADE", i)->currentText() + u'=' + variable(effects[i]);
        for (const auto& [box, name] : {std::pair{"txtS5H", u"@S5H%1"_s}, {"txtS5A", u"@S5A%1"_s}}) {
            for (int i = 0; i < 5; ++i)
                all += gallery.find<QLineEdit>(box, i)->text() + u'=' + variable(name.arg(i + 1));
        }
        return all.join(u' ');
    };
    gallery.write(u"SELECTIONS.TXT"_s,
                  " 1 \r\n 1\r\n2\r\n3\r\n4\r\n11\r\n12\r\n13\r\n14\r\n15\r\n21\r\n22\r\n23\r\n24\r\n25\r\n");
    gallery.start();
    EXPECT_EQ(variable(u"@GREETING"), u"Hello") << "the general variables are in force";
    EXPECT_TRUE(isOpen("frmGENERAL"));
    EXPECT_EQ(kept(), u"2=2 2=2 3=3 4=4 5=5 11=11 12=12 13=13 14=14 15=15 21=21 22=22 23=23 24=24 25=25");

    gallery.find<QComboBox>("cbQt")->setCurrentIndex(3);
    gallery.find<QComboBox>("cmbFADE", 0)->setCurrentIndex(24);
    gallery.find<QComboBox>("cmbFADE", 1)->setEditText(u"77"_s);
    gallery.find<QComboBox>("cmbFADE", 2)->setEditText(u"Off"_s);
    gallery.find<QComboBox>("cmbFADE", 3)->setEditText(u"slow"_s);
    for (int i = 0; i < 5; ++i) {
        gallery.find<QLineEdit>("txtS5H", i)->setText(u"3%1"_s.arg(i));
        gallery.find<QLineEdit>("txtS5A", i)->setText(u"0%1a"_s.arg(i));
    }
    QCoreApplication::processEvents();
    gallery.app.reset();
    gallery.start();
    EXPECT_EQ(kept(), u"4=4 25=25 77=77 Off=1 slow=slow 30=30 31=31 32=32 33=33 34=34 0=0 1=1 2=2 3=3 4=4");
}

TEST_F(SettingsTest, MainMenu) {
    gallery.start();
    gallery.click("cmdMenu");
    auto* menu = gallery.app->window().findChild<QMenu*>(u"mnMain"_s);
    ASSERT_TRUE(menu->isVisible());
    QStringList captions;
    for (const QAction* action : menu->actions()) captions += action->text().remove(u'&');
    EXPECT_EQ(captions.join(u'|'), u"Reload db vars|Display Vars|General Vars||Reload Cards|Screen mode|Theme");
    menu->close();

    const qsizetype variables = gallery.app->state().variables.size();
    item("mnReloadCards")->trigger();
    EXPECT_EQ(gallery.app->state().variables.size(), variables);
    item("mnDisplayVars")->trigger();
    const auto* text = gallery.form("frmVARS")->findChild<QPlainTextEdit*>(u"txtVARS"_s);
    EXPECT_EQ(text->blockCount(), variables + 1);
    gallery.app->state().variables.SetVar(u"@HTLNAMEEN", u"changed"_s);
    item("mnReloadVar")->trigger();
    EXPECT_EQ(variable(u"@HTLNAMEEN"), u"Harbour City");

    item("mnSet43")->trigger();
    EXPECT_EQ(variable(u"@SCREEN_MODE"), u"4_3");
    EXPECT_EQ(gallery.at("cmdSCREENMODE", 1).backColour(), colours::kScreenModeOn) << "the buttons stay as they are";
    item("mnSet43")->trigger();
    EXPECT_TRUE(item("mnSet43")->isChecked()) << "choosing it twice keeps the mark";
    EXPECT_FALSE(item("mnSet169")->isChecked());
    gallery.click("cmdSCREENMODE", 1);
    EXPECT_EQ(variable(u"@SCREEN_MODE"), u"16_9");
    EXPECT_FALSE(item("mnSet169")->isChecked()) << "the buttons leave the menu alone";
    gallery.click("cmdSCREENMODE", 0);
    item("mnSet169")->trigger();
    EXPECT_EQ(variable(u"@SCREEN_MODE"), u"16_9");
    EXPECT_TRUE(item("mnSet169")->isChecked() && !item("mnSet43")->isChecked());
}

TEST_F(SettingsTest, TheLanguageChangesWhileACardWaits) {
    gallery.start();
    QTimer::singleShot(50, &gallery.app->window(), [&] {
        gallery.find<QComboBox>("cmbLANG")->setCurrentIndex(1);
        EXPECT_EQ(variable(u"@AFTER"), u"");
    });
    gallery.click("cmbCARD", 1);
    EXPECT_EQ(variable(u"@AFTER"), u"GR") << "the card that waited ran to its end";
    EXPECT_EQ(gallery.at("cmbCARD", 0).text(), u"Πρώτη");
    EXPECT_EQ(gallery.at("lblFKEYTITLE", 0).text(), u"Κλειδί");
    EXPECT_EQ(variable(u"@HTLNAMEEN"), u"Λιμάνι");
    EXPECT_EQ(variable(u"@GREETING"), u"Γεια");
    EXPECT_TRUE(isOpen("frmGENERAL"));
}

// The editor takes neither the keyboard nor the function keys away from the cards.
TEST_F(SettingsTest, FunctionKeysReachTheCardsFromTheForms) {
    gallery.writeCard("first", "SETVAR~@FIRED;{@FIRED}x");
    gallery.start();
    auto* editor = gallery.form("frmGENERAL");
    EXPECT_TRUE(editor->testAttribute(Qt::WA_ShowWithoutActivating));
    EXPECT_EQ(editor->parentWidget(), nullptr) << "a window that belongs to another cannot go behind it";
    item("mnDisplayVars")->trigger();
    for (QWidget* target : {editor, editor->findChild<QWidget*>(u"vsDATA"_s), gallery.form("frmVARS")})
        QTest::keyClick(target, Qt::Key_F1);
    EXPECT_EQ(variable(u"@FIRED"), u"xxx");
    auto* search = editor->findChild<QLineEdit*>(u"txtSEARCH"_s);
    QTest::keyClicks(search, u"greet"_s);
    EXPECT_EQ(search->text(), u"greet") << "its other keys are its own";
}

TEST_F(SettingsTest, ChoosingTheLanguageAgainReadsTheCards) {
    gallery.start();
    gallery.writePack({"Edited,first.csp"});
    auto* languages = gallery.find<QComboBox>("cmbLANG");
    const auto choose = [&](bool next) {
        QTest::keyClick(languages, Qt::Key_Down, Qt::AltModifier);
        if (next) QTest::keyClick(languages->view(), Qt::Key_Down);
        QTest::keyClick(languages->view(), Qt::Key_Return);
        return languages->currentText();
    };
    choose(false);
    EXPECT_EQ(gallery.at("cmbCARD", 0).text(), u"Edited");
    gallery.writePack({"Later,first.csp"});
    QFile::remove(gallery.folder.filePath(u"MODULES/QRD_GR/CARDS.TXT"_s));
    EXPECT_EQ(choose(true), u"EN");
    EXPECT_EQ(gallery.at("cmbCARD", 0).text(), u"Edited") << "a language that is refused reads nothing anew";
    EXPECT_EQ(choose(false) + gallery.at("cmbCARD", 0).text(), u"ENLater");
}

TEST_F(SettingsTest, ClosingTheConsoleAsksNothing) {
    gallery.start();
    const auto openDatabases = [this] {
        const QString database = gallery.folder.filePath(u"test.db"_s);
        int open = 0;
        for (const QFileInfo& file : QDir(u"/proc/self/fd"_s).entryInfoList(QDir::AllEntries | QDir::System))
            open += file.symLinkTarget() == database ? 1 : 0;
        return open;
    };
    EXPECT_EQ(openDatabases(), 2);
    item("mnDisplayVars")->trigger();
    const qsizetype questions = gallery.shown.size();
    gallery.app->window().close();
    EXPECT_EQ(gallery.shown.size(), questions);
    EXPECT_FALSE(isOpen("frmGENERAL"));
    EXPECT_FALSE(isOpen("frmVARS"));
    EXPECT_EQ(openDatabases(), 0);
}

}  // namespace zelvor::test
