#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QListView>
#include <QScrollBar>
#include <QUdpSocket>

#include "console/card_button.h"
#include "gallery.h"

using namespace Qt::StringLiterals;

namespace zelvor::test {

// The console on a pack of a few cards.
class MainWindowTest : public testing::Test {
 protected:
    void startWithCards() {
        gallery.writePack({"Score,score.csp,1", "Player,player.qrd"},
                          "FKEYS:1|Score|score.csp,4|Player|player.csp\r\n");
        gallery.writeCard("score", "CSPSEND~SCORE\r\nON~0");
        gallery.start();
    }

    LineServer peer;
    Gallery gallery;
};

// Notes which windows come up.
class WindowWatch : public QObject {
 public:
    WindowWatch() { qApp->installEventFilter(this); }
    bool eventFilter(QObject* object, QEvent* event) override {
        const auto* widget = qobject_cast<QWidget*>(object);
        const bool comesUp = event->type() == QEvent::Show && widget != nullptr && widget->isWindow();
        if (comesUp && qobject_cast<QDialog*>(object) == nullptr) names += widget->objectName();
        return false;
    }
    QStringList names;
};

TEST_F(MainWindowTest, ClicksAndKeysPutCardsOnAir) {
    const WindowWatch windows;
    startWithCards();
    EXPECT_EQ(windows.names, (QStringList{u"frmMAIN"_s, u"frmGENERAL"_s}));
    ASSERT_EQ(gallery.shown.size(), 2);
    EXPECT_TRUE(gallery.shown[0].startsWith(u"Project Pack Selection|1. EN-Basketball"));
    EXPECT_EQ(gallery.app->window().windowTitle(), u"Zelvor Cards (" ZELVOR_VERSION ")");
    gallery.connectMain(peer);
    gallery.click("cmbCARD", 0);
    EXPECT_TRUE(heard(peer, {u"SCORE"_s}));
    const auto* score = gallery.find<CardButton>("cmbCARD", 0);
    EXPECT_EQ(score->face(), (CardButton::Face{true, false, true, true, u"F1"_s}));
    EXPECT_EQ(score->accessibleName(), u"Card 1: Score, ON · F1");
    EXPECT_TRUE(gallery.find<CardButton>("cmbCARD", 20)->face().quiet);
    EXPECT_EQ(gallery.find<TextLabel>("lblONAIRCARD")->text(), u"Score");

    gallery.click("GradientButtonS", 1);
    EXPECT_EQ(gallery.find<CardButton>("cmbCARD", 0)->text(), u"Second");
    gallery.click("cmbCARD", 0);
    gallery.press(Qt::Key_F4);
    gallery.click("GradientButtonAIR");
    EXPECT_TRUE(heard(peer, {u"SECOND"_s, u"PLAYER"_s, u"CLEAR 1"_s}));
    EXPECT_EQ(gallery.find<TextLabel>("lblONAIR")->text(), u"");

    peer.stop();
    const auto groundOf = [&](const char* name, int index) {
        return gallery.find<ConsoleButton>(name, index)->groundColour();
    };
    EXPECT_TRUE(waitUntil([&] { return groundOf("cmdTAB", 4) == QColor(255, 0, 0); }));
    gallery.click("cmdGASPARCONNECT");
    EXPECT_EQ(groundOf("cmdTAB", 4), std::nullopt);
    EXPECT_EQ(groundOf("cmdGASPARCONNECT", -1), QColor(0, 255, 0)) << "stays green";
}

TEST_F(MainWindowTest, ACardSaysWhatInItsValuesBreaksTheGraphic) {
    gallery.writePack({"Strap,strap.csp", "Plain,plain.csp"});
    gallery.writeCard("plain", "CLEARDATA\r\nSDATA~NAME;Vance\r\nMAKEXML");
    gallery.writeCard("strap", "SDATA~NAME;O'Neal\r\nSDATA~CLUB;A\"<&\\\r\nMAKEXML");
    gallery.start();
    gallery.click("cmbCARD", 1);
    gallery.click("cmbCARD", 0);
    const auto* strap = gallery.find<CardButton>("cmbCARD", 0);
    EXPECT_TRUE(strap->face().fault.startsWith(u"NAME holds a quote, CLUB holds")) << qPrintable(strap->face().fault);
    EXPECT_TRUE(strap->accessibleName().endsWith(strap->face().fault));
    EXPECT_EQ(gallery.find<CardButton>("cmbCARD", 1)->face().fault, QString());
    QFile log(gallery.folder.filePath(u"errors.log"_s));
    EXPECT_TRUE(log.open(QIODevice::ReadOnly) && log.readAll().contains("MAKEXML: NAME holds a quote"));
    gallery.writeCard("strap", "CLEARDATA\r\nSDATA~NAME;Neal\r\nMAKEXML");
    gallery.click("cmbCARD", 0);
    EXPECT_EQ(strap->face().fault, QString());
}

TEST_F(MainWindowTest, KeysBelongToTheForm) {
    startWithCards();
    gallery.connectMain(peer);
    MainWindow& window = gallery.app->window();
    auto* address = gallery.find<QLineEdit>("txtGASPARIP");
    for (QWidget* target :
         {static_cast<QWidget*>(&window), static_cast<QWidget*>(address), gallery.find<QWidget>("cmbCARD", 1)}) {
        QTest::keyClick(target, Qt::Key_F1);
        EXPECT_TRUE(heard(peer, {u"SCORE"_s})) << target->objectName().toStdString();
    }
    // An open list closes, and the key still fires.
    gallery.click("cmdTAB", 0);
    auto* periods = gallery.find<QComboBox>("cbQt");
    periods->showPopup();
    ASSERT_NE(QApplication::activePopupWidget(), nullptr);
    QTest::keyClick(periods->view(), Qt::Key_F4);
    EXPECT_TRUE(heard(peer, {u"PLAYER"_s}));
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    QKeyEvent repeated(QEvent::KeyPress, Qt::Key_F1, Qt::NoModifier, QString(), true);
    QApplication::sendEvent(&window, &repeated);
    auto* button = gallery.find<QWidget>("cmbCARD", 0);
    button->setFocus();
    for (const Qt::Key key :
         {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter, Qt::Key_A, Qt::Key_F2, Qt::Key_F11, Qt::Key_Escape}) {
        QTest::keyClick(button, key);
        QTest::keyClick(&window, key);
    }
    EXPECT_TRUE(window.isVisible());
    // An input edits with its keys, and tells the control.
    address->setFocus();
    address->selectAll();
    QTest::keyClicks(address, u"10.0.0.7"_s);
    EXPECT_EQ(gallery.at("txtGASPARIP").text(), u"10.0.0.7");
    auto* lock = gallery.find<QCheckBox>("chkONAIRLOCK");
    QTest::keyClick(lock, Qt::Key_Space);
    EXPECT_TRUE(gallery.at("chkONAIRLOCK").checked());
    gallery.press(Qt::Key_F4);
    EXPECT_TRUE(heard(peer, {u"PLAYER"_s})) << "nothing else was fired before";
}

// Through the window, as the platform brings keys.
TEST_F(MainWindowTest, EveryDeedHasAKey) {
    startWithCards();
    gallery.connectMain(peer);
    MainWindow& window = gallery.app->window();
    window.activateWindow();
    const auto key = [&](int code, Qt::KeyboardModifiers modifiers) {
        QKeyEvent press(QEvent::KeyPress, code, modifiers);
        QCoreApplication::sendEvent(window.windowHandle(), &press);
        QCoreApplication::processEvents();
    };
    constexpr int kGreekAlpha = 0x391;
    for (const int letter : {static_cast<int>(Qt::Key_A), kGreekAlpha}) {
        key(letter, Qt::AltModifier);
        EXPECT_TRUE(heard(peer, {u"SCORE"_s})) << letter;
        key(letter, Qt::AltModifier | Qt::ShiftModifier);
        EXPECT_TRUE(heard(peer, {u"SCORE"_s})) << letter;
    }
    key(Qt::Key_2, Qt::ControlModifier);
    key(Qt::Key_A, Qt::AltModifier);
    key(Qt::Key_Delete, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_TRUE(heard(peer, {u"SECOND"_s, u"CLEAR 1"_s}));
    // A tab leads on into its panel, a key of a box to its panel.
    key(Qt::Key_1, Qt::AltModifier);
    EXPECT_TRUE(gallery.at("Frame1").visible());
    EXPECT_EQ(QApplication::focusWidget(), gallery.find<QWidget>("cmdTAB", 0));
    key(Qt::Key_E, Qt::ControlModifier);
    EXPECT_TRUE(gallery.at("Frame5").visible());
    EXPECT_EQ(QApplication::focusWidget(), gallery.find<QWidget>("txtMANUALCASPAR"));
    key(Qt::Key_Up, Qt::ControlModifier);
    key(Qt::Key_Up, Qt::ControlModifier);
    key(Qt::Key_Down, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(gallery.at("mnSCOREA").text(), u"2");
    EXPECT_NE(gallery.at("mnSCOREB").text(), u"0") << "typed into a text box, and still the form's";
    // Among labels of one kind the arrows lead on; only Ctrl+Enter presses.
    gallery.at("lblHPLAYERS", 1).setText(u"11 Orfanos"_s);
    key(Qt::Key_P, Qt::ControlModifier);
    key(Qt::Key_Down, Qt::NoModifier);
    ASSERT_EQ(QApplication::focusWidget(), gallery.find<QWidget>("lblHPLAYERS", 1));
    key(Qt::Key_Return, Qt::NoModifier);
    key(Qt::Key_Space, Qt::NoModifier);
    EXPECT_FALSE(gallery.app->state().console.playerSelected);
    key(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_TRUE(gallery.app->state().console.playerSelected);
    key(Qt::Key_Escape, Qt::NoModifier);
    EXPECT_EQ(QApplication::focusWidget(), &window);
    // What the pack has covered has no keys.
    gallery.at("picHideControls").setVisible(true);
    key(Qt::Key_Up, Qt::ControlModifier);
    EXPECT_EQ(gallery.at("mnSCOREA").text(), u"2");

    const auto* card = gallery.find<CardButton>("cmbCARD", 0);
    QTest::keyPress(window.windowHandle(), Qt::Key_Alt);
    EXPECT_EQ(card->letter(), u"A");
    QTest::keyRelease(window.windowHandle(), Qt::Key_Alt);
    EXPECT_EQ(card->letter(), QString());
    EXPECT_EQ(peer.takeLines(), QStringList());
}

// The theme and the window's place outlive the program; a screen that is gone does not take the window along.
TEST_F(MainWindowTest, LooksAsItDidLast) {
    startWithCards();
    gallery.app->settings().choose(u"mnLight"_s);
    gallery.app->window().setGeometry(40, 30, 700, 500);
    gallery.app->window().close();
    CardsApp unseen({gallery.folder.path(), {}, gallery.folder.filePath(u"errors.log"_s), {}, 0});
    unseen.window().close();
    startWithCards();
    EXPECT_EQ(theme::current(), theme::Theme::Light);
    EXPECT_EQ(gallery.app->window().geometry(), QRect(40, 30, 700, 500));
    QWidget far;
    far.setGeometry(9000, 7000, 700, 500);
    gallery.write(u"LOOK.TXT"_s, "theme=none such\r\nwindow=" + far.saveGeometry().toBase64() + "\r\n");
    startWithCards();
    EXPECT_EQ(theme::current(), theme::Theme::Dark);
    const QRect screen = gallery.app->window().screen()->availableGeometry();
    EXPECT_TRUE(screen.contains(gallery.app->window().geometry().center()));
}

TEST_F(MainWindowTest, OnTwoScreensBoxesOpenOverTheirWindow) {
    if (QGuiApplication::screens().size() < 2) GTEST_SKIP() << "this platform has one screen";
    const QRect second = QGuiApplication::screens().at(1)->availableGeometry();
    startWithCards();
    gallery.app->window().setGeometry(second.adjusted(60, 60, -60, -60));
    gallery.app->window().close();
    startWithCards();
    gallery.writeCard("player", "BREAK~Ready?");
    QStringList elsewhere;
    const auto look = [&](const QWidget* shown) {
        EXPECT_TRUE(waitUntil([&] { return shown->isVisible(); }));
        if (!second.contains(shown->geometry())) elsewhere += shown->objectName() + shown->windowTitle();
    };
    look(&gallery.app->window());
    gallery.answer = [&](QDialog& box) {
        look(&box);
        box.accept();
    };
    gallery.shown.clear();
    gallery.press(Qt::Key_F4);
    EXPECT_EQ(gallery.shown.size(), 1);
    QTest::keyClick(&gallery.app->window(), Qt::Key_K, Qt::ControlModifier);
    look(gallery.form("frmFIND"));
    QTest::keyClick(&gallery.app->window(), Qt::Key_F12);
    look(gallery.form("frmKEYS"));
    gallery.click("cmdMenu");
    look(gallery.app->window().findChild<QWidget*>(u"mnMain"_s));
    EXPECT_EQ(elsewhere, QStringList());
}

TEST_F(MainWindowTest, FindsAndFires) {
    startWithCards();
    gallery.connectMain(peer);
    const auto find = [&](const QString& typed, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(&gallery.app->window(), Qt::Key_K, Qt::ControlModifier);
        auto* box = gallery.form("frmFIND")->findChild<QLineEdit*>(u"txtFIND"_s);
        QTest::keyClicks(box, typed);
        QTest::keyClick(box, Qt::Key_Return, modifiers);
        return gallery.form("frmFIND")->isVisible();
    };
    EXPECT_FALSE(find(u"SECO"_s));
    EXPECT_TRUE(heard(peer, {u"SECOND"_s})) << "a card of another set";
    EXPECT_FALSE(find({}));
    EXPECT_TRUE(heard(peer, {u"SECOND"_s})) << "fired last, first in the list";
    EXPECT_FALSE(find(u"clear csp"_s, Qt::ShiftModifier));
    EXPECT_TRUE(heard(peer, {u"CLEAR 1"_s})) << "a script that has no card";
    EXPECT_TRUE(find(u"no such thing"_s));
    gallery.form("frmFIND")->close();
    EXPECT_FALSE(find(u"4:3"_s));
    EXPECT_EQ(gallery.app->state().variables.text(u"@SCREEN_MODE"), u"4_3");
    EXPECT_FALSE(find(u"@HTLNAMEEN"_s));
    ASSERT_TRUE(gallery.form("frmVARS")->isVisible());
    const auto* listed = gallery.form("frmVARS")->findChild<QWidget*>(u"txtVARS"_s);
    EXPECT_TRUE(listed->property("plainText").toString().contains(u"@HTLNAMEEN = Harbour City"));
    EXPECT_EQ(peer.takeLines(), QStringList());
}

TEST_F(MainWindowTest, ManualLineAndHistory) {
    startWithCards();
    gallery.connectMain(peer);
    auto* line = gallery.find<QLineEdit>("txtMANUALCASPAR");
    line->setFocus();
    QTest::keyClicks(line, u"CG 1-1 ADD 1 '{@HTLNAMEEN}' 1"_s);
    QTest::keyClick(line, Qt::Key_Return);
    EXPECT_TRUE(heard(peer, {u"CG 1-1 ADD 1 \"Harbour City\" 1"_s}));
    line->clear();
    QTest::keyClick(line, Qt::Key_Up);
    EXPECT_EQ(line->text(), u"CG 1-1 ADD 1 '{@HTLNAMEEN}' 1");

    auto* history = gallery.find<QListView>("lstGASPARHISTORY");
    EXPECT_FALSE(history->isVisible());
    gallery.click("cmdVIEWGASPHISTORY");
    ASSERT_TRUE(history->isVisible());
    // The newest line is followed until the operator scrolls up.
    QScrollBar* bar = history->verticalScrollBar();
    for (int i = 0; i < 10000; ++i) gallery.app->links().appendHistory({QString::number(i)});
    QCoreApplication::sendPostedEvents(history->model());
    EXPECT_EQ(history->model()->rowCount(), 500);
    const auto newest = [&] { return history->visualRect(history->model()->index(499, 0)); };
    EXPECT_TRUE(waitUntil([&] { return history->viewport()->rect().intersects(newest()); }));
    bar->setValue(30);
    const auto topLine = [&] { return history->indexAt({5, 5}).data().toString(); };
    EXPECT_TRUE(waitUntil([&] { return !topLine().isEmpty(); }));
    const QString read = topLine();
    for (const QString& late : {u"late"_s, u"later"_s}) gallery.app->links().appendHistory({late});
    QCoreApplication::processEvents();
    EXPECT_EQ(topLine(), read);

    history->scrollToTop();
    const QModelIndex first = history->model()->index(0, 0);
    QTest::mouseClick(history->viewport(), Qt::LeftButton, {}, history->visualRect(first).center());
    EXPECT_EQ(QGuiApplication::clipboard()->text(), first.data().toString());
    gallery.app->links().showLastTemplate(u"<a><b/></a>"_s);
    gallery.click("cmdLASTXML");
    auto* xml = gallery.find<QWidget>("lblLASTXML");
    EXPECT_TRUE(xml->isVisible());
    EXPECT_EQ(xml->property("plainText").toString(), u"<a>\n  <b/>\n</a>");
    gallery.click("cmdGASPHISTCLOSE");
    EXPECT_FALSE(xml->isVisible());
}

// Whatever is missing, the console comes up and says so.
TEST_F(MainWindowTest, StartsWithoutItsFiles) {
    const std::tuple<const char*, std::function<void()>, QStringList> cases[]{
        {"no MODULES",
         [&] { QDir(gallery.folder.filePath(u"MODULES"_s)).removeRecursively(); },
         {u"|There is no folder MODULES in"_s}},
        {"no packs", [] {}, {u"PACKS.TXT"_s, u"No default Pack found"_s}},
        {"a list without a pack",
         [&] { gallery.write(u"PACKS.TXT"_s, "\r\n"); },
         {u"/MODULES/PACKS.TXT|No default Pack found"_s}},
        {"a pack without its folder",
         [&] { gallery.write(u"PACKS.TXT"_s, "XX;Nowhere\r\n"); },
         {u"\\MODULES\\QRD_XX"_s, u"No default Pack found"_s}},
        {"an empty pack",
         [&] { gallery.write(u"PACKS.TXT"_s, "EN\r\n"); },
         {u"Project Pack Selection|"_s, u"CONNECTIONS.TXT"_s, u"CARDS.TXT"_s, u"ASKFIELDS.TXT"_s, u"GetGame.csp"_s}},
    };
    for (const auto& [what, prepare, told] : cases) {
        gallery.shown.clear();
        prepare();
        gallery.start();
        const QString shown = gallery.shown.join(u'\n');
        for (const QString& words : told)
            EXPECT_TRUE(shown.contains(words)) << what << ": " << qPrintable(words + u" in\n" + shown);
        EXPECT_EQ(gallery.shown.size(), told.size()) << what << ": " << qPrintable(shown);
        EXPECT_TRUE(gallery.app->window().isVisible()) << what;
        gallery.click("cmbCARD", 0);
        gallery.click("cmdTAB", 0);
        EXPECT_TRUE(gallery.find<QWidget>("Frame1")->isVisible()) << what;
        QDir(gallery.folder.path()).mkpath(u"MODULES/QRD_EN"_s);
    }
}

TEST_F(MainWindowTest, DrivesTheGameFromItsPanels) {
    gallery.writePack({}, "TIMEDCARD:missing.csp|1\r\n");
    gallery.write(u"QRD_EN/GetGame.csp"_s,
                  "FUNCTIONCARD\r\nSQLU~create table proposedcard (pc_id integer, pc_used text)\r\n"
                  "SQLU~insert into proposedcard values (5, 'N'), (6, 'N')\r\n");
    gallery.writeCard("stats", "SQL~select group_concat(pc_used) from proposedcard\r\nSETVAR~@USED;{1|0}");
    gallery.answer = [](QDialog& box) {
        if (auto* field = box.findChild<QLineEdit*>(u"answer"_s)) field->setText(u"1"_s);
        if (box.isModal()) box.accept();
    };
    gallery.start();
    EXPECT_EQ(gallery.at("lblFEED").text(), u"feed bound, nothing heard");
    QUdpSocket().writeDatagram("t9:58t", QHostAddress::LocalHost, gallery.app->desk().feedSocket.port());
    EXPECT_TRUE(waitUntil([&] { return gallery.at("lblFEED").text() == u"feed 9:58"; }));

    // The timed card's script is missing: one notice that waits for nobody while the timer goes on.
    const auto notices = [&] { return gallery.shown.filter(u"missing.csp"_s).size(); };
    auto* tmrCard = gallery.app->desk().timedCards.findChild<QTimer*>(u"tmrCARD"_s);
    EXPECT_TRUE(waitUntil([&] { return notices() == 1 && tmrCard->isActive(); }));
    gallery.app->desk().timedCards.tick();
    EXPECT_EQ(notices(), 1);

    gallery.click("cmdTAB", 0);
    const auto* mark = gallery.find<TextLabel>("manualMark", 0);
    EXPECT_FALSE(mark->isVisible());
    gallery.find<QCheckBox>("chkMANUAL")->setChecked(true);
    EXPECT_TRUE(mark->isVisible());
    gallery.at("lblPROPOSED", 2).setTag(u"5|N|stats.csp|P:12"_s);
    // Its card runs before the proposal is marked as used.
    for (const QString& used : {u"N,N"_s, u"Y,N"_s}) {
        gallery.click("lblPROPOSED", 2);
        EXPECT_EQ(gallery.app->state().variables.text(u"@USED"), used);
    }
    EXPECT_EQ(gallery.at("lblPROPOSED", 2).backColour(), colours::kUsedProposal);
}

// A timed card asks without taking the keyboard from what the operator is typing.
TEST_F(MainWindowTest, QuestionsOfATimedCardLeaveTheKeyboardAlone) {
    startWithCards();
    gallery.connectMain(peer);
    gallery.writeCard("asks", "LOOPPAGE~Again?\r\nSETVAR~@DONE;{@LOOP_ANSWER}");
    gallery.app->window().activateWindow();
    auto* line = gallery.find<QLineEdit>("txtMANUALCASPAR");
    line->setFocus();
    ASSERT_TRUE(waitUntil([&] { return line->hasFocus(); }));
    gallery.shown.clear();
    gallery.answer = [&](QDialog& box) {
        EXPECT_TRUE(waitUntil([&] { return box.isVisible(); }));
        EXPECT_TRUE(line->hasFocus());
        EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
        gallery.press(Qt::Key_F4);
        line->setFocus();  // this platform activates whatever it shows
        gallery.app->window().activateWindow();
        EXPECT_TRUE(waitUntil([&] { return line->hasFocus(); }));
        QTest::keyClicks(line, u"VERSION"_s);
        gallery.press(Qt::Key_Return);
        QTest::keyClick(&box, Qt::Key_F4);  // also where he has clicked the question itself
        EXPECT_TRUE(heard(peer, {u"PLAYER"_s, u"VERSION"_s, u"PLAYER"_s}));
        box.accept();
    };
    gallery.app->state().cards.timedCards = {{u"asks.csp"_s, 1}};
    gallery.app->desk().timedCards.tick();
    EXPECT_EQ(gallery.shown.size(), 1);
    EXPECT_EQ(gallery.app->state().variables.text(u"@DONE"), u"6");
}

// A timed card that fails tells of it once, and keeps quiet when the operator says so until cards are reloaded.
TEST_F(MainWindowTest, FaultyTimedCardCanBeSilenced) {
    startWithCards();
    gallery.writeCard("broken", "ON~99");
    gallery.writeCard("other", "ON~98");
    gallery.answer = [](QDialog& box) {
        if (auto* quiet = box.findChild<QCheckBox*>(u"quiet"_s)) quiet->setChecked(true);
        box.accept();
    };
    const auto told = [&](const QString& card) {
        gallery.shown.clear();
        gallery.app->state().cards.timedCards = {{card, 1}};
        gallery.app->desk().timedCards.tick();
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return gallery.shown.size();
    };
    EXPECT_EQ(told(u"broken.csp"_s), 1);
    EXPECT_TRUE(gallery.shown[0].contains(u"Error 9"));
    EXPECT_EQ(told(u"broken.csp"_s), 0);
    EXPECT_EQ(gallery.at("lblSILENCED").text(), u"1 message of broken.csp not shown");
    EXPECT_EQ(told(u"other.csp"_s), 1);
    for (const int times : {1, 0}) EXPECT_EQ(told(u"missing.csp"_s), times) << "its script is not there";
    gallery.app->boxes().forgetQuietCards();
    EXPECT_EQ(told(u"broken.csp"_s), 1);

    gallery.app->boxes().forgetQuietCards();
    gallery.answer = [](QDialog& box) { EXPECT_EQ(box.findChild<QCheckBox*>(u"quiet"_s), nullptr); };
    for (int times = 0; times < 2; ++times) {
        gallery.app->boxes().message({Asker::Kind::TimedCard}, u"As-run record"_s, u"full"_s);
        QCoreApplication::processEvents();
    }
    EXPECT_EQ(gallery.at("lblSILENCED").text(), u"1 message of As-run record not shown") << "no card's";
}

TEST_F(MainWindowTest, ClosingAsksWhileSomethingIsOnAirOrUnsaved) {
    gallery.write(u"QRD_EN/infodata.dat"_s, "zelvor-grid 1\nhello\t\t@GREETING\t\n");
    startWithCards();
    const auto closes = [&] {
        gallery.shown.clear();
        QCloseEvent event;
        QSpontaneKeyEvent::setSpontaneous(&event);  // from the window manager
        QCoreApplication::instance()->notify(&gallery.app->window(), &event);
        return event.isAccepted();
    };
    gallery.at("lblONAIR").setText(u"ON AIR"_s);
    gallery.connectMain(peer);
    gallery.answer = [](QDialog& box) { box.reject(); };
    EXPECT_FALSE(closes());
    EXPECT_EQ(gallery.shown, QStringList{u"Close the console?|Something is on air."_s});
    gallery.at("lblONAIR").setText({});
    gallery.app->settings().showGeneral();
    auto* grid = gallery.form("frmGENERAL")->findChild<QAbstractItemView*>(u"vsDATA"_s)->model();
    grid->setData(grid->index(0, 0), u"edited"_s);
    EXPECT_FALSE(closes());
    EXPECT_EQ(gallery.shown, QStringList{u"Close the console?|General variables are not saved."_s});
    gallery.app->program().closing.begin();  // the program's own end asks nothing
    EXPECT_FALSE(gallery.app->window().isVisible());
    EXPECT_EQ(gallery.shown.size(), 1);
}

TEST_F(MainWindowTest, ACommandLineAnswersTheStartAndAHiddenPanelStillConnects) {
    gallery.writePack({}, "SHOWCONTROLS:NO\r\n");
    gallery.adjust = [this](CardsApp::Options& options) {
        options.pack = u"EN"_s;
        options.connection = 1;
        options.main = HostPort{u"127.0.0.1"_s, peer.serverPort()};
        options.connects = true;
    };
    gallery.start();
    EXPECT_EQ(gallery.shown, QStringList());
    EXPECT_EQ(gallery.at("lblDATABASE").text(), u"database 1 connected");
    const auto isConnected = [&] { return gallery.app->links().state(LinkId::Main) == Graphics::kConnected; };
    EXPECT_TRUE(waitUntil(isConnected));
    EXPECT_FALSE(gallery.find<QLineEdit>("txtMANUALCASPAR")->isEnabled());
    auto* cover = gallery.find<QWidget>("picHideControls");
    QTest::mouseClick(cover->findChild<QWidget*>(u"cmdGASPARCONNECT"_s), Qt::LeftButton);
    EXPECT_FALSE(isConnected());
}

// The first question stands alone, the window being built behind it; the second one stands over the window. Closing
// either is closing the program.
TEST_F(MainWindowTest, AsksBeforeItsWindowAndClosesAtAQuestion) {
    for (const int closed : {1, 2}) {
        gallery.shown.clear();
        gallery.answer = [&](QDialog& box) {
            EXPECT_TRUE(waitUntil([&] { return gallery.form("frmMAIN") != nullptr; }));
            const QWidget* window = gallery.form("frmMAIN");
            const bool isFirst = gallery.shown.size() == 1;
            EXPECT_EQ(window->isVisible(), !isFirst);
            EXPECT_EQ(gallery.app->state().variables.text(u"@GAMEPERIOD"), u"1") << "the rules need no window";
            EXPECT_EQ(box.parentWidget(), isFirst ? nullptr : window);
            if (gallery.shown.size() < closed) return box.accept();
            QCloseEvent event;
            QSpontaneKeyEvent::setSpontaneous(&event);  // from the window manager
            QCoreApplication::instance()->notify(&box, &event);
        };
        startWithCards();
        EXPECT_TRUE(gallery.app->program().closing.hasBegun());
        EXPECT_EQ(gallery.shown.size(), closed) << "no further question";
    }
}

}  // namespace zelvor::test
