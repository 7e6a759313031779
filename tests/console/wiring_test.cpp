#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QComboBox>
#include <QWheelEvent>

#include "console/theme.h"
#include "gallery.h"

using namespace Qt::StringLiterals;

namespace zelvor::test {

namespace {

using Act = void (*)(QWidget& widget);

void look(QWidget&) {}
void press(QWidget& widget) {
    QTest::mouseClick(&widget, Qt::LeftButton);
}
void pressRight(QWidget& widget) {
    QTest::mouseClick(&widget, Qt::RightButton);
}
// As a display server tells of it: the second press is the double click.
void pressTwice(QWidget& widget) {
    const QPointF middle = widget.rect().center();
    quint64 moment = 1'000'000;
    for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease, QEvent::MouseButtonDblClick,
                                    QEvent::MouseButtonRelease}) {
        const Qt::MouseButtons held = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
        QMouseEvent event(type, middle, widget.mapToGlobal(middle), Qt::LeftButton, held, Qt::NoModifier);
        event.setTimestamp(moment += 50);
        QApplication::sendEvent(&widget, &event);
    }
}
void tick(QWidget& widget) {
    static_cast<QAbstractButton&>(widget).click();
}
void typeNine(QWidget& widget) {
    widget.setFocus();
    static_cast<QLineEdit&>(widget).selectAll();
    QTest::keyClick(&widget, Qt::Key_9);
}
void enter(QWidget& widget) {
    widget.setFocus();
    QTest::keyClick(&widget, Qt::Key_Return);
}
// The list opens, and its next entry is chosen.
void next(QWidget& widget) {
    auto* entries = static_cast<QComboBox&>(widget).view();
    QTest::keyClick(&widget, Qt::Key_Down);
    QTest::keyClick(entries, Qt::Key_Down);
    QTest::keyClick(entries, Qt::Key_Return);
}
void wheel(QWidget& widget) {
    widget.setFocus();
    const QPointF middle = widget.rect().center();
    QWheelEvent event(middle, widget.mapToGlobal(middle), {}, {0, -120}, {}, {}, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&widget, &event);
}

// A widget, where it lies as seen from another one, and what follows when something is done to it: every control that
// changes, "name=text", "name on", "name shown", "name green", in the order of the alphabet, then "> " and each line
// that is sent.
struct Tie {
    const char* name;
    int index;
    const char* lies;
    const char* other;
    int otherIndex;
    Act act;
    const char* follows;
};

const Tie kTies[] = {
    {"cmbCARD", 1, "below", "cmbCARD", 0, press, "> CARD 1"},
    {"cmbCARD", 7, "right of", "cmbCARD", 0, press, "> CARD 7"},
    {"cmdCARDBOX", 1, "in", "cmbCARD", 1, press, "> CARD 1"},
    {"cmbCARD", 0, "above", "lblPROPOSED", 1, pressTwice, "> CARD 0"},
    {"GradientButtonS", 1, "right of", "GradientButtonS", 0, press,
     "GradientButtonS(0) off, GradientButtonS(1) on, cmbCARD(0)=Second, cmbCARD(1)=, cmbCARD(7)="},
    {"GradientButtonS", 0, "above", "cmbCARD", 0, press,
     "GradientButtonS(0) on, GradientButtonS(1) off, cmbCARD(0)=Card, cmbCARD(1)=Card, cmbCARD(7)=Card"},
    {"GradientButtonAIR", -1, "right of", "lblONAIRCARD", -1, press, "> CLEAR 1"},
    {"cmdSCREENMODE", 0, "left of", "cmdSCREENMODE", 1, press, "cmdSCREENMODE(0) chosen"},
    {"lblFKEYTITLE", 3, "right of", "lblFKEY", 3, press, "> KEY"},
    {"lblPROPOSED", 5, "below", "lblPROPOSED", 1, look, ""},
    {"lblPROPOSED", 2, "right of", "lblPROPOSED", 1, look, ""},
    // Players: home on the left.
    {"lblHTEAM", -1, "above", "lblHPLAYERS", 0, look, ""},
    {"lblATEAM", -1, "above", "lblAPLAYERS", 0, look, ""},
    {"lblHPLAYERS", 13, "left of", "lblAPLAYERS", 0, press, "lblHPLAYERS(13) green, lblHTEAM green"},
    {"lblAPLAYERS", 12, "right of", "lblAPLAYERS", 0, press, "lblAPLAYERS(12) green, lblATEAM green"},
    {"lblAPLAYERS", 1, "below", "lblAPLAYERS", 0, pressRight, "lblAPLAYERS(1) red"},
    // Scores.
    {"cmdTAB", 0, "left of", "cmdTAB", 1, press, "Frame1 shown, Frame5 hidden, cmdTAB(0) on, cmdTAB(4) off"},
    {"chkMANUAL", -1, "below", "Label1", -1, tick,
     "Label1 red, chkMANUAL green, chkMANUAL on, lblAutoScoreA red, lblAutoScoreB red"},
    {"lblHTEAM.score", 0, "left of", "lblATEAM.score", 0, look, ""},
    {"lblAutoScoreA", -1, "left of", "lblAutoScoreB", -1, look, ""},
    {"lblScoreA", -1, "above", "cmdMANSCORE", 0, look, ""},
    {"lblScoreB", -1, "above", "cmdMANSCORE", 2, look, ""},
    {"cmdMANSCORE", 0, "right of", "mnSCOREA", -1, press, "lblScoreA=1, mnSCOREA=1"},
    {"cmdMANSCORE", 1, "left of", "mnSCOREA", -1, press, "lblScoreA=0, mnSCOREA=0"},
    {"cmdMANSCORE", 1, "left of", "mnSCOREA", -1, press, "lblScoreA=-1, mnSCOREA=-1"},
    {"cmdMANSCORE", 2, "right of", "mnSCOREB", -1, press, "lblScoreB=1, mnSCOREB=1"},
    {"cmdMANSCORE", 3, "left of", "mnSCOREB", -1, press, "lblScoreB=0, mnSCOREB=0"},
    {"mnSCOREA", -1, "left of", "mnSCOREB", -1, typeNine, "lblScoreA=9, mnSCOREA=9"},
    {"mnSCOREB", -1, "right of", "cmdMANSCORE", 0, typeNine, "lblScoreB=9, mnSCOREB=9"},
    {"cbQt", -1, "above", "Label1", -1, wheel, ""},
    {"cbQt", -1, "right of", "lblScoreA", -1, next, "cbQt=2"},
    {"lblTime", -1, "left of", "lblETime", -1, look, ""},
    {"txtEAFTER", -1, "below", "chkEAFTER", -1, typeNine, "txtEAFTER=9"},
    {"chkEAFTER", -1, "right of", "lblETime", -1, tick, "chkEAFTER on"},
    // Line-ups: home above away.
    {"cmdTAB", 1, "left of", "cmdTAB", 2, press, "Frame1 hidden, Frame2 shown, cmdTAB(0) off, cmdTAB(1) on"},
    {"cmdTAB", 2, "left of", "cmdTAB", 3, press, "Frame2 hidden, Frame3 shown, cmdTAB(1) off, cmdTAB(2) on"},
    {"cmdTAB", 3, "left of", "cmdTAB", 4, press, "Frame3 hidden, Frame4 shown, cmdTAB(2) off, cmdTAB(3) on"},
    {"cmdTAB", 4, "left of", "cmdTAB", 5, press, "Frame4 hidden, Frame5 shown, cmdTAB(3) off, cmdTAB(4) on"},
    {"cmdTAB", 5, "right of", "cmdTAB", 4, press, "Frame5 hidden, Frame7 shown, cmdTAB(4) off, cmdTAB(5) on"},
    {"txtS5H", 3, "above", "txtS5A", 3, typeNine, "txtS5H(3)=9"},
    {"txtS5A", 4, "right of", "txtS5A", 3, typeNine, "txtS5A(4)=9"},
    {"txtS11H", 10, "above", "txtS11A", 10, typeNine, "txtS11H(10)=9"},
    {"txtS11A", 10, "right of", "txtS11A", 9, typeNine, "txtS11A(10)=9"},
    {"cmdINVOKE", -1, "right of", "cmdAUTO5ADA", -1, press, "> invoke"},
    {"cmdAUTO5ADA", -1, "left of", "cmdAUTOCARD", -1, press, "> auto5ada"},
    {"cmbFADE", 1, "right of", "cmbFADE", 0, wheel, ""},
    {"cmbFADE", 2, "below", "cmbFADE", 0, next, "cmbFADE(2)=11"},
    {"optTIMERS", 1, "below", "optTIMERS", 0, tick, "optTIMERS(0) off, optTIMERS(1) on"},
    {"txtCOUNTDOWNTIME", -1, "right of", "optTIMERS", 1, typeNine, "txtCOUNTDOWNTIME=9"},
    {"txtEXTRATIME", -1, "left of", "Command1", -1, typeNine, "txtEXTRATIME=9"},
    // Links: Enter connects and never drops.
    {"cmbCASPARREMOTELIST", -1, "above", "txtGASPARIPREMOTE", -1, wheel, ""},
    {"txtGASPARIPREMOTE", -1, "left of", "txtGASPARPORTREMOTE", -1, enter, "cmdGASPARCONNECTREMOTE=Disconnect"},
    {"txtGASPARIPREMOTE", -1, "left of", "cmdGASPARCONNECTREMOTE", -1, enter, ""},
    {"txtGASPARPORTREMOTE", -1, "left of", "cmdGASPARCONNECTREMOTE", -1, enter, ""},
    {"cmdGASPARCONNECTREMOTE", -1, "below", "chkRECONNECTREMOTE", -1, press, "cmdGASPARCONNECTREMOTE=Connect"},
    {"chkRECONNECTREMOTE", -1, "right of", "txtGASPARPORTREMOTE", -1, tick, "chkRECONNECTREMOTE on"},
    {"txtGASPARIP", -1, "left of", "txtGASPARPORT", -1, enter, ""},
    {"txtGASPARPORT", -1, "left of", "cmdGASPARCONNECT", -1, enter, ""},
    {"txtMANUALCASPAR", -1, "left of", "cmdMANUALSEND", -1, typeNine, "txtMANUALCASPAR=9"},
    {"cmdMANUALSEND", -1, "below", "lstGASPARRESPONSE", -1, press, "> 9"},
    {"chkLOGFILE", -1, "left of", "cmdVIEWGASPHISTORY", -1, tick, "chkLOGFILE on, lblLOG=writing"},
    {"cmdVIEWGASPHISTORY", -1, "below", "cmdMANUALSEND", -1, press, "fraGASPHISTORY shown"},
    {"cmdLASTXML", -1, "above", "lstGASPARHISTORY", -1, press,
     "chkLASTXMLRAW shown, cmdLASTXML=Show Last CG, lstGASPARHISTORY hidden"},
    {"cmdGASPHISTCLOSE", -1, "right of", "cmdLASTXML", -1, press, "fraGASPHISTORY hidden"},
    {"cmdGASPARCONNECT", -1, "below", "chkRECONNECT", -1, press, "cmdGASPARCONNECT=Connect"},
    {"txtGASPARPORT", -1, "left of", "chkRECONNECT", -1, enter, "cmdGASPARCONNECT=Disconnect"},
};

bool lies(const QWidget& widget, QLatin1StringView where, const QWidget& other) {
    const auto area = [](const QWidget& each) { return QRect(each.mapToGlobal(QPoint()), each.size()); };
    const QRect own = area(widget);
    const QRect from = area(other);
    if (where == u"left of") return own.right() < from.left();
    if (where == u"right of") return own.left() > from.right();
    if (where == u"in") return from.contains(own);
    const bool sameColumn = own.left() <= from.right() && from.left() <= own.right();
    return sameColumn && (where == u"above" ? own.bottom() < from.top() : own.top() > from.bottom());
}

// How a property that has changed stands now, as a tie says it; empty for what no tie is about.
QString described(const Control& control, Control::Property property) {
    switch (property) {
        case Control::Property::Text:
            return u'=' + control.text();
        case Control::Property::BackColour:
            return control.backColour() == colours::kScreenModeOn ? u" chosen"_s : QString();
        case Control::Property::ForeColour:
            if (control.foreColour() == colours::kGreen) return u" green"_s;
            return control.foreColour() == colours::kRed ? u" red"_s : QString();
        case Control::Property::Visible:
            return control.visible() ? u" shown"_s : u" hidden"_s;
        case Control::Property::Checked:
            return control.checked() ? u" on"_s : u" off"_s;
        default:
            return {};
    }
}

}  // namespace

// What lies where the operator's hand expects it does what it says, and nothing else.
TEST(Wiring, EveryWidgetActsAsItsPlaceSays) {
    LineServer main;
    LineServer remote;
    Gallery gallery;
    QByteArrayList cards(8, ",");
    for (const int each : {0, 1, 7}) cards[each] = "Card,card.csp";
    gallery.writePack(cards, "FKEYS:1|Key|none.csp,4|Key|KEY.csp\r\n");
    gallery.writeCard("card", "FUNCTIONCARD\r\nCSPSEND~CARD {@CARD_BUTTON_INDEX}");
    for (const char* script : {"KEY", "invoke", "auto5ada"})
        gallery.writeCard(script, QByteArray("FUNCTIONCARD\r\nCSPSEND~") + script);
    gallery.start();
    gallery.connectMain(main);
    gallery.at("txtGASPARIPREMOTE").setText(u"127.0.0.1"_s);
    gallery.at("txtGASPARPORTREMOTE").setText(remote.port());
    for (const char* players : {"lblHPLAYERS", "lblAPLAYERS"}) {
        for (Control* label : gallery.app->form().named(QString::fromLatin1(players))) label->setText(u"7 Laskaris"_s);
    }
    const QStringList movesByItself{u"lblCLOCK"_s,    u"lblFEED"_s,       u"lblFEEDDETAIL"_s,
                                    u"lblLINKMAIN"_s, u"lblLINKREMOTE"_s, u"lblLIVEBLINK"_s};
    for (const Tie& tie : kTies) {
        SCOPED_TRACE(std::string(tie.name) + ' ' + std::to_string(tie.index) + ", \"" + tie.follows + '"');
        auto* widget = gallery.find<QWidget>(tie.name, tie.index);
        const auto* other = gallery.find<QWidget>(tie.other, tie.otherIndex);
        ASSERT_TRUE(widget != nullptr && other != nullptr);
        const bool onEleven = gallery.find<QWidget>("Frame6")->isAncestorOf(widget);
        gallery.at("Frame6").setVisible(onEleven);
        for (int tab = 0; !widget->isVisible() && tab < CardConsole::kTabs; ++tab) gallery.click("cmdTAB", tab);
        QCoreApplication::processEvents();
        EXPECT_TRUE(lies(*widget, QLatin1StringView(tie.lies), *other)) << "not " << tie.lies << ' ' << tie.other;

        using Changed = std::pair<QString, Control::Property>;
        std::map<Changed, QString> changes;
        const auto noting = QObject::connect(
            &gallery.app->form(), &FormModel::changed, [&](const Control* control, Control::Property property) {
                if (movesByItself.contains(control->name())) return;
                changes[{control->displayName(), property}] = described(*control, property);
            });
        tie.act(*widget);
        QObject::disconnect(noting);
        QStringList followed;
        for (const auto& [changed, how] : changes) {
            if (!how.isEmpty()) followed += changed.first + how;
        }
        if (gallery.app->links().state(LinkId::Main) == Graphics::kConnected) {
            gallery.app->links().sendLine(LinkId::Main, u"END"_s, {});
            EXPECT_TRUE(waitUntil([&] { return main.bytes.endsWith("END\r\n"); }));
            QStringList lines = main.takeLines();
            lines.removeLast();
            for (const QString& line : lines) followed += u"> "_s + line;
        }
        EXPECT_EQ(followed.join(u", "_s).toStdString(), tie.follows);
    }
}

}  // namespace zelvor::test
