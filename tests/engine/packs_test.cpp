#include "engine/packs.h"

#include <gtest/gtest.h>

#include "support/fake_ports.h"

using namespace Qt::StringLiterals;

namespace zelvor {
namespace {

QByteArray set(int number, const QByteArray& title, const QByteArray& firstCards, int cards) {
    QByteArray text = "SETNO:" + QByteArray::number(number) + ',' + title + "\r\n" + firstCards;
    for (qsizetype i = firstCards.count('\n'); i < cards; ++i) text += ",\r\n";
    return text;
}

class PackFiles : public testing::Test, public test::EngineBench {
 protected:
    void SetUp() override {
        write(u"PACKS.TXT"_s, "XX;gone\r\n\r\nTT;Tests;2\r\nYY\r\n");
        write(u"QRD_TT/CARDS.TXT"_s,
              "FKEYS:1|Score|score.qrd,3|Clock|clock.qrd\r\nTIMEDCARD:a.qrd|50,b.qrd|-1\r\nCLEAR:clear.qrd\r\n"
              "clear:other.qrd\r\nSHOWPREVIEW:no\r\nSHOWCONTROLS:NOT\r\nODD\r\n" +
                  set(1, "Game", "Score,score.qrd,1\r\n\r\nClock,clock.qrd\r\nX,x.qrd,1,x\r\n", 21) +
                  set(5, "Last", "", 21));
    }
};

TEST_F(PackFiles, ThePackIsAskedForUntilItExists) {
    operatorDesk.answers = {u"x"_s, u"0"_s, u"2"_s, u" 1 "_s};
    EXPECT_TRUE(packs.LOAD_PACKS());
    EXPECT_EQ(u"TT"_s, state.language());
    EXPECT_EQ(QStringList(4, u"Project Pack Selection|1. TT-Tests-2\r\n|1"_s), operatorDesk.asked);
    EXPECT_EQ(QStringList{u"Missing folder(s)|Warning!!! Missing folders for the following Pack(s):\r\n\r\n"
                          "\\MODULES\\QRD_XX\r\n\\MODULES\\QRD_YY\r\n"_s},
              operatorDesk.shown);
    EXPECT_EQ(u"TT"_s, form.at(controls.cmbLANG).text());
}

TEST_F(PackFiles, TheCardTableIsRead) {
    ASSERT_TRUE(packs.LOAD_CARDS()) << operatorDesk.shown.join(u'\n').toStdString();
    const CardTable& cards = state.cards;
    EXPECT_EQ(u"score.qrd||Clock"_s,
              cards.functionKeys[1].script + u'|' + cards.functionKeys[2].title + u'|' + cards.functionKeys[3].title);
    ASSERT_EQ(2U, cards.timedCards.size());
    EXPECT_EQ(50, cards.timedCards[0].interval);
    EXPECT_EQ(-1, cards.timedCards[1].interval);
    EXPECT_EQ(u"clear.qrd"_s, cards.clearCard);
    EXPECT_TRUE(cards.showControls && !cards.showPreview);
    QStringList game;
    for (int i = 1; i <= 4; ++i) game += cards.sets[1][i].script + (cards.sets[1][i].flag ? u"!"_s : u""_s);
    EXPECT_EQ(u"score.qrd!,,clock.qrd,x.qrd"_s, game.join(u','));
    EXPECT_EQ(u"Score"_s, form.at(controls.cmbCARD, 0).text());
    EXPECT_EQ(u"Last"_s, form.at(controls.GradientButtonS, 4).text());
    state.cards.timedCards[0].ticks = 7;
    ASSERT_TRUE(packs.LOAD_CARDS());
    EXPECT_EQ(7, state.cards.timedCards[0].ticks) << "an unchanged list goes on counting";
    state.variables.SetVar(u"@LANGUAGE", u"NONE"_s);
    EXPECT_FALSE(packs.LOAD_CARDS());
    EXPECT_EQ(u"clear.qrd"_s, state.cards.clearCard) << "a table that is missing leaves the cards";
    state.variables.SetVar(u"@LANGUAGE", u"TT"_s);
    write(u"QRD_TT/CARDS.TXT"_s, "\x7f\x01 no table\r\nsetno:1,A\r\n");
    EXPECT_TRUE(packs.LOAD_CARDS());
    EXPECT_TRUE(operatorDesk.shown.last().endsWith(u"CARDS.TXT holds no line of a card table."));
}

TEST_F(PackFiles, ABrokenCardTableIsReportedWithItsLineAndReadUpToTheFault) {
    const std::tuple<QByteArray, int, int> rows[] = {
        {set(7, "Seven", "", 21), 9, 2}, {set(2, "Short", "A,a.qrd\r\n", 20), 62, 22},
        {"FKEYS:13|x|y\r\n", 9, 2},      {"TIMEDCARD:a|70000\r\n", 6, 2},
        {"SETNO:x,Title\r\n", 13, 2},    {set(3, "Comma", "no comma\r\n", 21), 9, 3},
    };
    for (const auto& [text, error, line] : rows) {
        operatorDesk.shown.clear();
        write(u"QRD_TT/CARDS.TXT"_s, "CLEAR:before.qrd\r\n" + text);
        EXPECT_FALSE(packs.LOAD_CARDS());
        ASSERT_EQ(1, operatorDesk.shown.size()) << text.toStdString();
        EXPECT_TRUE(operatorDesk.shown[0].startsWith(u"Error %1\r\n"_s.arg(error)));
        EXPECT_TRUE(operatorDesk.shown[0].endsWith(u"LOAD_CARDS\r\nLine %1"_s.arg(line)))
            << operatorDesk.shown[0].toStdString();
        EXPECT_TRUE(operatorDesk.shown[0].contains(u"CARDS.TXT"));
        EXPECT_EQ(u"before.qrd"_s, state.cards.clearCard);
    }
}

}  // namespace
}  // namespace zelvor
