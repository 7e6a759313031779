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
    struct Case {
        bool manual;
        const char* control;
        QString text;
        QString left;  // lblScoreA|lblScoreB|@GREENSCOREA|@GREENSCOREB|@MANUALSCOREA|@MANUALSCOREB
    };
    const Case cases[] = {
        {false, "lblAutoScoreA", u"12"_s, u"12|0|12|-|-|-"_s},
        {false, "lblAutoScoreB", u"9 pts"_s, u"0|9 pts|-|9|-|-"_s},
        {false, "mnSCOREA", u"07"_s, u"0|0|-|-|7|-"_s},
        {false, "lblScoreB", u"x"_s, u"0|x|-|0|-|-"_s},
        {true, "lblAutoScoreA", u"12"_s, u"0|0|-|-|-|-"_s},
        {true, "mnSCOREA", u"07"_s, u"7|0|7|-|7|-"_s},
        {true, "mnSCOREB", u"abc"_s, u"0|0|-|-|-|0"_s},
        {true, "mnSCOREB", u"-3"_s, u"0|-3|-|-3|-|-3"_s},
        {true, "mnSCOREA", u"1e999"_s, u"0|0|-|-|-|-"_s},
    };
    for (const Case& each : cases) {
        Studio studio;
        studio.at("chkMANUAL").setChecked(each.manual);
        studio.form.at(QString::fromLatin1(each.control)).setText(each.text);
        SCOPED_TRACE(each.left.toStdString());
        EXPECT_EQ(QString(studio.at("lblScoreA").text() + u'|' + studio.at("lblScoreB").text() + u'|' +
                          studio.variablesText(
                              {u"@GREENSCOREA"_s, u"@GREENSCOREB"_s, u"@MANUALSCOREA"_s, u"@MANUALSCOREB"_s})),
                  each.left);
        EXPECT_EQ(studio.operatorDesk.shown, QStringList());
    }
}

TEST(Scoreboard, SwitchesManualMode) {
    Studio studio;
    auto* timer = studio.desk.scoreboard.findChild<QTimer*>(u"tmrBlink"_s);
    EXPECT_TRUE(timer->isActive());
    EXPECT_EQ(timer->interval(), 700);
    QList<bool> lamp;
    for (int i = 0; i < 4; ++i) {
        studio.desk.scoreboard.blink();
        lamp += studio.at("lblLIVEBLINK").visible();
    }
    EXPECT_EQ(lamp, QList<bool>({false, true, false, true}));

    // Cards write labels by name.
    studio.run("SHOW2LABEL~lblAutoScoreA;20\nSHOW2LABEL~lblAutoScoreB;18\n");
    studio.at("mnSCOREA").setText(u"07"_s);
    EXPECT_EQ(studio.variable("@GREENSCOREA"), u"20"_s);
    for (const bool manual : {true, false}) {
        studio.at("chkMANUAL").setChecked(manual);
        EXPECT_EQ(studio.at("lblScoreA").text(), manual ? u"07"_s : u"20"_s);
        EXPECT_EQ(studio.at("lblScoreB").text(), manual ? u"0"_s : u"18"_s);
        EXPECT_EQ(studio.at("chkMANUAL").foreColour(), manual ? colours::kGreen : colours::kWhite);
        for (const char* label : {"lblAutoScoreA", "lblAutoScoreB", "Label1"})
            EXPECT_EQ(studio.at(label).foreColour(), manual ? colours::kRed : colours::kGreen);
        EXPECT_EQ(studio.at("lblLIVEBLINK").visible(), !manual);
        EXPECT_EQ(timer->isActive(), !manual);
    }
}

TEST(Scoreboard, StepsTheManualScore) {
    struct Case {
        bool manual;
        int button;
        QString left;  // mnSCOREA|mnSCOREB|lblScoreA|lblScoreB
    };
    const Case cases[] = {
        {true, 0, u"1|7|1|7"_s},  {true, 1, u"-1|7|-1|7"_s}, {true, 2, u"0|8|0|8"_s},   {true, 3, u"0|6|0|6"_s},
        {false, 2, u"0|8|0|0"_s}, {true, 4, u"0|07|0|7"_s},  {true, -1, u"0|07|0|7"_s},
    };
    for (const Case& each : cases) {
        Studio studio;
        studio.at("chkMANUAL").setChecked(each.manual);
        studio.at("mnSCOREB").setText(u"07"_s);
        studio.desk.scoreboard.cmdMANSCORE(each.button);
        QStringList left;
        for (const char* name : {"mnSCOREA", "mnSCOREB", "lblScoreA", "lblScoreB"}) left += studio.at(name).text();
        EXPECT_EQ(left.join(u'|'), each.left) << each.button;
    }
}

TEST(LineUps, KeepEachBoxInItsVariable) {
    Studio studio;
    const std::vector<std::tuple<const char*, int, QString, const char*, QString>> cases{
        {"txtS5A", 0, u"4"_s, "@S5A1", u"4"_s},
        {"txtS5H", 4, u"15 x"_s, "@S5H5", u"15"_s},
        {"txtS11A", 10, u"7"_s, "@S11A11", u"7"_s},
        {"txtS11H", 0, u"no"_s, "@S11H1", u"0"_s}};
    for (const auto& [box, index, text, variable, value] : cases) {
        studio.at(box, index).setText(text);
        EXPECT_EQ(studio.variable(variable), value) << variable;
    }
    EXPECT_EQ(studio.state.variables.find(u"@S5A2"), nullptr);
    studio.at("txtEXTRATIME").setText(u" +4 "_s);
    EXPECT_EQ(studio.variable("@EXTRATIME"), u" +4 "_s);
}

TEST(PlayerLabels, MarkThePlayerAndSetHisAnswers) {
    const auto mouse = [](Studio& studio, QChar side, int index, Qt::MouseButton button) {
        if (side == u'A') studio.desk.players.lblAPLAYERS(index, button);
        if (side == u'H') studio.desk.players.lblHPLAYERS(index, button);
    };
    for (const QChar side : {u'A', u'H'}) {
        const bool away = side == u'A';
        const char* own = away ? "lblAPLAYERS" : "lblHPLAYERS";
        const char* other = away ? "lblHPLAYERS" : "lblAPLAYERS";
        Studio studio;
        Control& ownTeam = studio.at(away ? "lblATEAM" : "lblHTEAM");
        Control& otherTeam = studio.at(away ? "lblHTEAM" : "lblATEAM");
        studio.at(own, 3).setText(u"4 Smith"_s);
        studio.at(own, 3).setTag(u"P:12##N:Smith"_s);
        studio.at(own, 23).setText(u"9 Jones"_s);
        studio.at(own, 23).setTag(u"P:9:8##broken##N:Jones"_s);
        mouse(studio, side, 0, Qt::LeftButton);
        EXPECT_EQ(inColour(studio, other, colours::kWhite), QString()) << "no player there";
        EXPECT_FALSE(studio.state.playerSelected);

        mouse(studio, side, 3, Qt::LeftButton);
        EXPECT_EQ(inColour(studio, own, colours::kGreen), u"3"_s);
        EXPECT_EQ(inColour(studio, own, colours::kWhite).split(u' ').size(), 23);
        EXPECT_EQ(inColour(studio, other, colours::kWhite).split(u' ').size(), 24);
        EXPECT_EQ(ownTeam.foreColour(), colours::kGreen);
        EXPECT_EQ(otherTeam.foreColour(), colours::kWhite);
        EXPECT_EQ(studio.variablesText({u"AUTOTAG_P"_s, u"AUTOTAG_O"_s, u"AUTOTAG_N"_s}), u"12|-|Smith"_s);
        EXPECT_TRUE(studio.state.playerSelected);

        // The right button marks a second one; what his tag holds before its fault is set.
        studio.state.playerSelected = false;
        mouse(studio, side, 23, Qt::RightButton);
        EXPECT_EQ(inColour(studio, own, colours::kGreen), u"3"_s);
        EXPECT_EQ(inColour(studio, own, colours::kRed), u"23"_s);
        EXPECT_EQ(studio.variablesText({u"AUTOTAG_P"_s, u"AUTOTAG_O"_s, u"AUTOTAG_N"_s}), u"12|9|Smith"_s);
        EXPECT_FALSE(studio.state.playerSelected);
        mouse(studio, side, 24, Qt::LeftButton);
        EXPECT_EQ(studio.operatorDesk.shown, QStringList());
    }
}

TEST(Proposals, RunTheCardAndMarkItUsed) {
    const QString update = u"update proposedcard set pc_used='Y' where pc_id="_s;
    struct Case {
        QString tag;
        bool taken;
        QString answers;  // AUTOTAG_P|AUTOTAG_T
    };
    const Case cases[] = {
        {u"17|N|stats.qrd|P:12##T:AWAY"_s, true, u"12|AWAY"_s}, {u"17|Y|stats.qrd|"_s, true, u"-|-"_s},
        {u"17|N|stats.qrd|P:12|more"_s, true, u"12|-"_s},       {u"17|N|stats.qrd"_s, false, u"-|-"_s},
        {u"17|N|stats.qrd|P:12##broken"_s, false, u"12|-"_s},   {QString(), false, u"-|-"_s},
    };
    for (const Case& each : cases) {
        Studio studio;
        studio.write(u"QRD_TT/stats.csp"_s, "ON~2\nCSPSEND~stats\n");
        studio.state.playerSelected = true;
        studio.at("lblPROPOSED", 8).setTag(each.tag);
        studio.desk.proposals.lblPROPOSED(8);
        SCOPED_TRACE(each.tag.toStdString());
        EXPECT_EQ(studio.graphics.sent, each.taken ? QStringList({u"mstats"_s}) : QStringList());
        EXPECT_EQ(studio.database.statements, each.taken ? QStringList({update + u"17"_s}) : QStringList());
        EXPECT_EQ(studio.at("lblPROPOSED", 8).backColour(),
                  each.taken ? std::optional(colours::kUsedProposal) : std::nullopt);
        EXPECT_EQ(studio.variablesText({u"AUTOTAG_P"_s, u"AUTOTAG_T"_s}), each.answers);
        EXPECT_NE(studio.at("cmbCARD", 2).state(), u"ON"_s) << "card buttons keep their states";
        EXPECT_FALSE(studio.state.playerSelected);
        for (const char* labels : {"lblAPLAYERS", "lblHPLAYERS"})
            EXPECT_EQ(inColour(studio, labels, colours::kWhite).split(u' ').last(), u"17"_s);
        EXPECT_EQ(studio.operatorDesk.shown, QStringList());
    }
}
