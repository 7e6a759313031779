#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QPushButton>
#include <QRegularExpression>

#include "app_cards/ui_language.h"
#include "console/text_label.h"
#include "gallery.h"

using namespace Qt::StringLiterals;

namespace zelvor::test {

namespace {

// The same in every language: the system's own words as packs and manuals know them, and names of keys and files.
QSet<QString> knownWords() {
    const QString system =
        u"CLEAR ON AIR LIVE Main Connect Disconnect Connected Show Last XML CG Log caspar Extra after time Manual "
        "Score START STOP Start Stop Scores Effect Network Caspar Clocks Simple clock Countdown Mode Reload db "
        "vars Cards Display Vars General Screen mode Stored Variables pasted to clipboard Zelvor HH MM SS max Off "
        "Fast ON OFF none Ctrl Alt Shift Del Delete Up Down Enter Esc Tab CASPAROUT TXT MODULES invoke infodata "
        "dat txt csp"_s;
    const QString ofThisPack = u"Game Players Second Harbour City EN FOLDER app folder user error"_s;
    const QStringList words = QString(system + u' ' + ofThisPack).split(u' ');
    return {words.begin(), words.end()};
}

// The Latin words of a text that no other language would leave as they are.
QStringList strangeWords(const QString& text) {
    static const QSet<QString> known = knownWords();
    static const QRegularExpression kWord(u"(?<![A-Za-z@_/.{])[A-Za-z]{2,}(?![A-Za-z_/])"_s);
    QStringList strange;
    for (const QRegularExpressionMatch& match : kWord.globalMatch(QString(text).remove(u'&')))
        if (!known.contains(match.captured())) strange += match.captured();
    return strange;
}

// All that the program's windows tell, hidden panels and tool tips among it.
QStringList toldByWindows() {
    QStringList told;
    for (const QWidget* widget : QApplication::allWidgets()) {
        for (const char* property : {"text", "placeholderText", "toolTip", "accessibleName", "accessibleDescription",
                                     "windowTitle", "title", "plainText"})
            told += widget->property(property).toString();
        for (const QAction* action : widget->actions()) told += {action->text(), action->toolTip()};
        const auto* view = qobject_cast<const QAbstractItemView*>(widget);
        if (view == nullptr || view->model() == nullptr) continue;
        for (int column = 0; column < view->model()->columnCount(); ++column)
            told += view->model()->headerData(column, Qt::Horizontal).toString();
    }
    return told;
}

struct GreekConsole {
    GreekConsole() {
        at.writePack({"Σκορ,score.csp", "Ερώτηση,ask.csp", ",", ","}, "SHOWCONTROLS:YES\r\n");
        at.writeCard("ask", "MSGBOX~Μήνυμα");
        at.write(u"QRD_EN/infodata.dat"_s, {});
        at.adjust = [](CardsApp::Options& options) { options.keepsAsRun = false; };
        at.start();
    }
    UiLanguage greek{u"el"_s};
    Gallery at;
};

}  // namespace

TEST(UiLanguage, TellsNothingInAnotherLanguage) {
    const GreekConsole console;
    const Gallery& at = console.at;
    at.at("chkRECONNECT").setChecked(true);
    at.at("txtEAFTER").setText(u"x"_s);
    at.at("txtGASPARPORT").setText(u"0"_s);
    at.click("cmdGASPARCONNECT");
    at.at("chkONAIRLOCK").setChecked(true);
    at.at("chkLOGFILE").setChecked(true);
    at.press(Qt::Key_F12);
    QTest::keyClick(&at.app->window(), Qt::Key_K, Qt::ControlModifier);
    at.app->settings().choose(u"mnDisplayVars"_s);
    at.app->settings().choose(u"mnGeneralVars"_s);
    for (const char* window : {"frmKEYS", "frmFIND", "frmVARS", "frmGENERAL"})
        EXPECT_NE(at.form(window), nullptr) << window;
    for (const QString& text : toldByWindows()) {
        if (at.form("frmVARS")->findChild<QWidget*>(u"txtVARS"_s)->property("plainText") == text) continue;
        EXPECT_TRUE(strangeWords(text).isEmpty()) << qPrintable(text);
    }
}

TEST(UiLanguage, ShowsGreekAndLeavesTheNamesThatScriptsKnow) {
    GreekConsole console;
    Gallery& at = console.at;
    EXPECT_TRUE(at.at("lblLINKMAIN").text().startsWith(u"κύρια "_s));
    EXPECT_EQ(at.find<QAbstractButton>("cmdINVOKE")->text(), u"Εκτέλεση");
    EXPECT_EQ(at.at("cmdINVOKE").text(), u"Invoke");
    EXPECT_EQ(at.find<QAbstractButton>("cmdTAB", 0)->text(), u"Scores");
    EXPECT_EQ(at.at("cmbFADE", 1).hint(), u"Απόκρυψη: 1 ως 100, Off ή Fast");

    // What a script writes is shown as it is; its own first text is the console's again.
    at.at("cmdINVOKE").setText(u"Bench"_s);
    EXPECT_EQ(at.find<QAbstractButton>("cmdINVOKE")->text(), u"Bench");

    QStringList buttons;
    at.answer = [&](QDialog& box) {
        for (const QPushButton* button : box.findChildren<QPushButton*>()) buttons += button->text().remove(u'&');
        box.reject();
    };
    EXPECT_FALSE(at.app->boxes().yesNo({}, u"Τίτλος"_s, u"Ερώτηση"_s));
    buttons.sort();
    EXPECT_EQ(buttons.join(u' '), u"CLEAR Όχι Ναι");
}

TEST(UiLanguage, FollowsTheDesktop) {
    EXPECT_EQ(UiLanguage::firstSpoken({u"de-DE"_s, u"el-GR"_s, u"en-GB"_s}), u"el");
    EXPECT_EQ(UiLanguage::firstSpoken({u"en-GB"_s, u"el"_s}), u"en");
    EXPECT_EQ(UiLanguage::firstSpoken({u"ja"_s, u"C"_s}), u"en");
}

}  // namespace zelvor::test
