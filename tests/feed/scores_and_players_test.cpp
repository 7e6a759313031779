#include <gtest/gtest.h>

#include "studio.h"

using namespace Qt::StringLiterals;
using namespace zelvor;
using namespace zelvor::test;

namespace {

// The indices of the labels in that colour, blanks between.
QString inColour(const Studio& studio, const char* labels, Colour colour) {
    QStringList indices;
    for (const Control* label : studio.form.named(QString::fromLatin1(labels))) {
        if (label->foreColour() == colour) indices += QString::number(label->index());
    }
    return indices.join(u' ');
}

}  // namespace

TEST(Scoreboard, FollowsTheScoresInBothModes) {
    // Manual mode, what changes and to what, then lblScoreA|lblScoreB|@GREENSCOREA|..B|@MANUALSCOREA|..B.
    const std::tuple<bool, const char*, QString, QString> cases[] = {
        {false, "lblAutoScoreA", u"12"_s, u"12|0|12|-|-|-"_s},
        {false, "lblAutoScoreB", u"9 pts"_s, u"0|9 pts|-|9|-|-"_s},
        {false, "mnSCOREA", u"07"_s, u"0|0|-|-|7|-"_s},
        {true, "lblAutoScoreA", u"12"_s, u"0|0|-|-|-|-"_s},
        {true, "mnSCOREA", u"07"_s, u"7|0|7|-|7|-"_s},
        {true, "mnSCOREB", u"-3"_s, u"0|-3|-|-3|-|-3"_s},
        {true, "mnSCOREA", u"1e999"_s, u"0|0|-|-|-|-"_s},
    };
    for (const auto& [manual, control, text, left] : cases) {
        Studio studio;
        studio.at("chkMANUAL").setChecked(manual);
        studio.at(control).setText(text);
        SCOPED_TRACE(left.toStdString());
        EXPECT_EQ(QString(studio.at("lblScoreA").text() + u'|' + studio.at("lblScoreB").text() + u'|' +
                          studio.variablesText(
                              {u"@GREENSCOREA"_s, u"@GREENSCOREB"_s, u"@MANUALSCOREA"_s, u"@MANUALSCOREB"_s})),
                  left);
        EXPECT_EQ(studio.operatorDesk.shown, QStringList());
    }
}

TEST(Scoreboard, SwitchesManualMode) {
    Studio studio;
    auto* timer = studio.desk.scoreboard.findChild<QTimer*>(u"tmrBlink"_s);
    for (const bool lamp : {false, true}) {
        studio.desk.scoreboard.blink();
        EXPECT_EQ(studio.at("lblLIVEBLINK").visible(), lamp);
    }
    // Cards write labels by name.
    studio.run("SHOW2LABEL~lblAutoScoreA;20\nSHOW2LABEL~lblAutoScoreB;18\n");
    studio.at("mnSCOREA").setText(u"07"_s);
    EXPECT_EQ(studio.variable("@GREENSCOREA"), u"20"_s);
    for (const bool manual : {true, false}) {
        studio.at("chkMANUAL").setChecked(manual);
        EXPECT_EQ(studio.at("lblScoreA").text(), manual ? u"07"_s : u"20"_s);
        EXPECT_EQ(studio.at("lblScoreB").text(), manual ? u"0"_s : u"18"_s);
        EXPECT_EQ(studio.at("lblAutoScoreB").foreColour(), manual ? colours::kRed : colours::kGreen);
        EXPECT_EQ(studio.at("lblLIVEBLINK").visible(), !manual);
        EXPECT_EQ(timer->isActive(), !manual);
    }
}

TEST(LineUps, KeepEachBoxInItsVariable) {
    Studio studio;
    studio.at("txtS11A", 10).setText(u"7 x"_s);
    studio.at("txtS11H", 0).setText(u"no"_s);
    studio.at("txtEXTRATIME").setText(u" +4 "_s);
    EXPECT_EQ(studio.variablesText({u"@S11A11"_s, u"@S11H1"_s, u"@EXTRATIME"_s, u"@S5A2"_s}), u"7|0| +4 |-"_s);
}

TEST(PlayerLabels, MarkThePlayerAndSetHisAnswers) {
    for (const bool away : {true, false}) {
        const auto press = away ? &PlayerLabels::lblAPLAYERS : &PlayerLabels::lblHPLAYERS;
        const char* own = away ? "lblAPLAYERS" : "lblHPLAYERS";
        const char* other = away ? "lblHPLAYERS" : "lblAPLAYERS";
        Studio studio;
        studio.at(own, 3).setText(u"4 Smith"_s);
        studio.at(own, 3).setTag(u"P:12##N:Smith"_s);
        studio.at(own, 23).setText(u"9 Jones"_s);
        studio.at(own, 23).setTag(u"P:9:8##broken##N:Jones"_s);
        (studio.desk.players.*press)(0, Qt::LeftButton);
        EXPECT_FALSE(studio.state.console.playerSelected) << "no player there";

        (studio.desk.players.*press)(3, Qt::LeftButton);
        EXPECT_EQ(inColour(studio, own, colours::kGreen), u"3"_s);
        EXPECT_EQ(inColour(studio, other, colours::kWhite).split(u' ').size(), 24);
        EXPECT_EQ(studio.at(away ? "lblATEAM" : "lblHTEAM").foreColour(), colours::kGreen);
        EXPECT_EQ(studio.variablesText({u"AUTOTAG_P"_s, u"AUTOTAG_O"_s, u"AUTOTAG_N"_s}), u"12|-|Smith"_s);
        EXPECT_TRUE(studio.state.console.playerSelected);

        // The right button marks a second one; what his tag holds before its fault is set.
        studio.state.console.playerSelected = false;
        (studio.desk.players.*press)(23, Qt::RightButton);
        EXPECT_EQ(inColour(studio, own, colours::kGreen), u"3"_s);
        EXPECT_EQ(inColour(studio, own, colours::kRed), u"23"_s);
        EXPECT_EQ(studio.variablesText({u"AUTOTAG_P"_s, u"AUTOTAG_O"_s, u"AUTOTAG_N"_s}), u"12|9|Smith"_s);
        EXPECT_FALSE(studio.state.console.playerSelected);
        EXPECT_EQ(studio.operatorDesk.shown, QStringList());
    }
}

TEST(Proposals, RunTheCardAndMarkItUsed) {
    // The tag, whether it is taken, then AUTOTAG_P|AUTOTAG_T.
    const std::tuple<QString, bool, QString> cases[] = {
        {u"17|N|stats.qrd|P:12##T:AWAY"_s, true, u"12|AWAY"_s},
        {u"17|Y|stats.qrd|"_s, true, u"-|-"_s},
        {u"17|N|stats.qrd|P:12##broken"_s, false, u"12|-"_s},
        {QString(), false, u"-|-"_s},
    };
    for (const auto& [tag, taken, answers] : cases) {
        Studio studio;
        studio.write(u"QRD_TT/stats.csp"_s, "ON~2\nCSPSEND~stats\n");
        studio.state.console.playerSelected = true;
        studio.at("lblPROPOSED", 8).setTag(tag);
        studio.desk.proposals.lblPROPOSED(8);
        SCOPED_TRACE(tag.toStdString());
        EXPECT_EQ(studio.graphics.sent, taken ? QStringList({u"mstats"_s}) : QStringList());
        EXPECT_EQ(studio.database.statements.size(), taken ? 1 : 0);
        EXPECT_EQ(studio.at("lblPROPOSED", 8).backColour().has_value(), taken);
        EXPECT_EQ(studio.variablesText({u"AUTOTAG_P"_s, u"AUTOTAG_T"_s}), answers);
        EXPECT_NE(studio.at("cmbCARD", 2).state(), u"ON"_s) << "card buttons keep their states";
        EXPECT_FALSE(studio.state.console.playerSelected);
        EXPECT_EQ(studio.operatorDesk.shown, QStringList());
    }
}
