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
        gallery.write(u"QRD_EN/waits.csp"_s, "DELAY~1\r\nSETVAR~@AFTER;{@LANGUAGE}\r\n");
        gallery.write(u"QRD_EN/infodata.dat"_s, "zelvor-grid 1\nHello\tGreeting\t@GREETING\t\n");
        QDir(gallery.folder.path()).mkpath(u"MODULES/QRD_GR"_s);
        gallery.write(u"PACKS.TXT"_s, "EN;English\r\nGR;Greek\r\n");
        gallery.write(u"QRD_GR/CARDS.TXT"_s,
                      "FKEYS:1|Κλειδί|x.csp\r\nSETNO:1,Game\r\nΠρώτη,x.csp\r\n" + QByteArray(",\r\n").repeated(20));
        gallery.write(u"QRD_GR/GetGame.csp"_s, "FUNCTIONCARD\r\nSETVAR~@HTLNAMEEN;Λιμάνι\r\n");
        gallery.write(u"QRD_GR/infodata.dat"_s, "zelvor-grid 1\nΓεια\tGreeting\t@GREETING\t\n");
    }
    QString variable(QStringView name) { return gallery.app->state().variables.text(name); }
    bool isOpen(const char* form) { return gallery.find<QWidget>(form, 0)->isVisible(); }
    QAction* item(const char* name) { return gallery.app->window().findChild<QAction*>(QString::fromLatin1(name)); }

    Gallery gallery;
};

TEST_F(SettingsTest, SelectionsAreFoundAgainAfterARestart) {
    gallery.start();
    EXPECT_EQ(variable(u"@GREETING"), u"Hello") << "the general variables are in force";
    EXPECT_TRUE(isOpen("frmGENERAL"));
    gallery.find<QComboBox>("cbQt")->setCurrentIndex(2);
    gallery.find<QComboBox>("cmbFADE", 0)->setCurrentIndex(24);
    gallery.find<QComboBox>("cmbFADE", 3)->setEditText(u"77"_s);
    gallery.find<QLineEdit>("txtS5H", 1)->setText(u"07"_s);
    gallery.find<QLineEdit>("txtS5A", 4)->setText(u"12a"_s);

    gallery.app.reset();
    gallery.start();
    EXPECT_EQ(gallery.find<QComboBox>("cbQt")->currentText(), u"3");
    EXPECT_EQ(variable(u"@GAMEPERIOD"), u"3");
    EXPECT_EQ(gallery.find<QComboBox>("cmbFADE", 0)->currentText(), u"25");
    EXPECT_EQ(variable(u"@FADE_IN"), u"25");
    EXPECT_EQ(variable(u"@FADE_OUT"), u"10");
    EXPECT_EQ(variable(u"@WIPE"), u"77");
    EXPECT_EQ(gallery.find<QLineEdit>("txtS5H", 1)->text(), u"7");
    EXPECT_EQ(variable(u"@S5A5"), u"12");
}

TEST_F(SettingsTest, MainMenu) {
    gallery.start();
    gallery.click("cmdMenu");
    auto* menu = gallery.app->window().findChild<QMenu*>(u"mnMain"_s);
    ASSERT_TRUE(menu->isVisible());
    QStringList captions;
    for (const QAction* action : menu->actions()) captions += action->text().remove(u'&');
    EXPECT_EQ(captions,
              (QStringList{
                  u"Reload db vars"_s, u"Display Vars"_s, u"General Vars"_s, {}, u"Reload Cards"_s, u"Screen mode"_s}));
    menu->close();

    const qsizetype variables = gallery.app->state().variables.size();
    item("mnReloadCards")->trigger();
    EXPECT_EQ(gallery.app->state().variables.size(), variables);
    item("mnDisplayVars")->trigger();
    const auto* text = gallery.app->window().findChild<QPlainTextEdit*>(u"txtVARS"_s);
    EXPECT_EQ(text->blockCount(), variables + 1);
    gallery.app->state().variables.SetVar(u"@HTLNAMEEN", u"changed"_s);
    item("mnReloadVar")->trigger();
    EXPECT_EQ(variable(u"@HTLNAMEEN"), u"Harbour City");

    item("mnSet43")->trigger();
    EXPECT_EQ(variable(u"@SCREEN_MODE"), u"4_3");
    item("mnSet43")->trigger();
    EXPECT_TRUE(item("mnSet43")->isChecked()) << "choosing it twice keeps the mark";
    EXPECT_FALSE(item("mnSet169")->isChecked());
    gallery.click("cmdSCREENMODE", 1);
    EXPECT_EQ(variable(u"@SCREEN_MODE"), u"16_9");
    EXPECT_FALSE(item("mnSet169")->isChecked()) << "the buttons leave the menu alone";
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

TEST_F(SettingsTest, ClosingTheConsoleAsksNothing) {
    gallery.start();
    item("mnDisplayVars")->trigger();
    auto* grid = gallery.app->window().findChild<QAbstractItemView*>(u"vsDATA"_s)->model();
    grid->setData(grid->index(0, 0), u"unsaved"_s);
    const qsizetype questions = gallery.shown.size();
    gallery.app->window().close();
    EXPECT_EQ(gallery.shown.size(), questions);
    EXPECT_FALSE(isOpen("frmGENERAL"));
    EXPECT_FALSE(isOpen("frmVARS"));
}

}  // namespace zelvor::test
