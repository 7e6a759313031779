// The demo's evening as the console plays it: one state, the rules of the running game, the demo's database, and the
// rehearsal server's interpreter at the other end.

#include <gtest/gtest.h>

#include "ask/ask_fields.h"
#include "ask/scripted_ask.h"
#include "data/connections.h"
#include "demo_folder.h"
#include "engine/card_engine.h"
#include "engine/defaults.h"
#include "engine/packs.h"
#include "engine/system_clock.h"
#include "feed/game_desk.h"
#include "rehearsal/amcp_interpreter.h"
#include "support/fake_ports.h"

using namespace Qt::StringLiterals;

namespace zelvor {
namespace {

using test::DemoFolder;

// The main link ends in a stage; every reply is remembered.
class AirGraphics : public test::FakeGraphics {
 public:
    void sendLine(LinkId link, const QString& command, const Asker& asker) override {
        FakeGraphics::sendLine(link, command, asker);
        const QString reply = interpreter_.answer(command, client_);
        if (!reply.startsWith(u"202"_s)) refused += command.left(60) + u": "_s + reply.trimmed();
    }

    QStringList refused;
    rehearsal::Stage stage{2};

 private:
    rehearsal::TemplateFolder templates_{test::demoPath(u"templates"_s)};
    rehearsal::AmcpInterpreter interpreter_{stage, templates_};
    rehearsal::AmcpClient client_;
};

class Evening : public testing::TestWithParam<const char*> {
 protected:
    void SetUp() override {
        ASSERT_TRUE(folderOnDisk_.isMade());
        program_.trap.setReporter([this](const ErrorPlace&, const QString& message) { operator_.shown += message; });
        writeAllDefaults(state_, form_, program_.folder);
        switchTo(QString::fromLatin1(GetParam()));
    }
    // What the console does when the operator chooses a pack.
    void switchTo(const QString& pack) {
        state_.variables.SetVar(u"@LANGUAGE", pack);
        ASSERT_TRUE(packs_.LOAD_CARDS());
        LOAD_ASK(state_, program_);
        fire(u"GetGame.csp"_s);
    }
    void TearDown() override {
        EXPECT_EQ("", operator_.shown.join(u'\n').toStdString());
        EXPECT_EQ("", graphics_.refused.join(u'\n').toStdString());
    }

    // Fires a card as its button does and lets a second pass. A card that puts something on is the last one shown.
    void fire(const QString& card) {
        EXPECT_EQ(CardEngine::Outcome::Ran, engine_.SHOW_TVCARD(card, state_.console.playerSelected, false, {}))
            << qPrintable(card);
        if (!folderOnDisk_.script(state_.language(), card).contains(u"FUNCTIONCARD"_s)) {
            EXPECT_EQ(card.toStdString(), state_.lastCard.toStdString());
        }
        for (int tick = 0; tick < 10; ++tick) game_.timedCards.tick();
    }
    // A message of the game clock.
    void hear(const QString& datagram) {
        game_.feed.handle(datagram);
        game_.feed.runTimeCard();
    }
    QStringList onButtons() {
        QStringList scripts;
        for (int row = 1; row <= CardTable::kCards; ++row) {
            const CardEntry& entry = state_.cards.entry(state_.currentSet, row);
            if (entry.on) scripts += entry.script.chopped(4);
        }
        return scripts;
    }
    QString lastLine() const { return graphics_.sent.value(graphics_.sent.size() - 1); }
    QString label(const QString& name, int index = -1) const { return form_.find(name, index)->text(); }
    QString fromDatabase(const QString& sql) {
        EXPECT_GT(database_.RUN_QUERY({}, sql), 0);
        const Value* cell = state_.QUERY_RESULT.find(1, 0);
        return cell == nullptr ? QString() : cell->text();
    }
    bool english() const { return state_.language() == u"EN"; }

    // Answers each pick list with the choice for its number.
    struct Chooser : AskDialog {
        explicit Chooser(Evening& evening) : evening_(evening) {}
        void show(const Asker& asker) override {
            ScriptedAsk(evening_.state_, evening_.database_, evening_.program_.trap,
                        {test::kChoices[evening_.state_.ask.ASK_FIELD]})
                .show(asker);
        }
        Evening& evening_;
    };

    DemoFolder folderOnDisk_;
    Program program_{AppFolder(folderOnDisk_.path()), {}, ErrorTrap(folderOnDisk_.path() + u"/errors.log"_s)};
    ShowState state_;
    FormModel form_;
    test::FakeOperator operator_;
    AirGraphics graphics_;
    test::FakeClock clock_;
    test::FakeDesktop desktop_;
    SystemClock databaseClock_{program_.closing};
    Connections database_{state_, operator_, program_, databaseClock_, {.number = 1}};
    Chooser chooser_{*this};
    Packs packs_{state_, form_, program_, operator_};
    CardEngine engine_{state_, form_, program_,
                       Ports{operator_, chooser_, graphics_, graphics_, database_, desktop_, clock_}};
    GameDesk game_{engine_};
};

TEST_P(Evening, EveryCardInAnyOrderPleasesTheServerAndKeepsTheButtonsTrue) {
    const QStringList always{u"scorebug"_s, u"gameclock"_s, u"teamfoul"_s, u"extratime"_s, u"crawl"_s};
    QStringList cards = folderOnDisk_.scripts(state_.language());
    for (int round = 0; round < 3; ++round) {
        std::reverse(cards.begin() + round, cards.end());  // another order each time, cards met on and off
        for (int set = 1; set < CardTable::kSets; ++set) {
            state_.currentSet = set;
            for (const QString& card : std::as_const(cards)) {
                const auto stands = [&](int row) { return state_.cards.entry(set, row).script == card; };
                bool isHere = false;
                for (int row = 1; row <= CardTable::kCards; ++row) isHere = isHere || stands(row);
                if (!isHere) continue;
                fire(card);
                int covering = 0;
                for (const QString& on : onButtons()) {
                    if (!always.contains(on)) ++covering;
                    EXPECT_FALSE(on.isEmpty()) << "set " << set << ' ' << qPrintable(card);
                }
                EXPECT_LE(covering, 1) << "set " << set << ' ' << qPrintable(card + u": "_s + onButtons().join(u' '));
            }
        }
    }
    for (int key = 1; key <= 5; ++key) fire(state_.cards.functionKey(key).script);
    for (const QString& card : {u"invoke.csp"_s, u"auto5ada.csp"_s}) fire(card);
    fire(state_.cards.clearCard);
    EXPECT_EQ("", onButtons().join(u' ').toStdString());
    const qsizetype sent = graphics_.sent.size();
    for (int tick = 0; tick < 50; ++tick) game_.timedCards.tick();
    EXPECT_EQ(sent, graphics_.sent.size()) << "nothing is refreshed that is off";
}

TEST_P(Evening, GameComesFromTheDatabase) {
    EXPECT_EQ(english() ? "Harbour City" : "Λιμάνι", label(u"lblHTEAM"_s).toStdString());
    EXPECT_EQ("78", label(u"lblScoreA"_s).toStdString());
    EXPECT_EQ("74", state_.variables.text(u"@GREENSCOREB").toStdString());
    EXPECT_EQ(english() ? "18 Vance" : "18 Βανς", label(u"lblHPLAYERS"_s, 2).toStdString());
    EXPECT_EQ("P:244##N:" + std::string(english() ? "Renn" : "Ρεν") + "##T:2",
              form_.at(controls.lblAPLAYERS, 11).tag().toStdString());

    fire(u"player.csp"_s);
    EXPECT_TRUE(lastLine().contains(english() ? u"Tyler Vance"_s : u"Τάιλερ Βανς"_s)) << qPrintable(lastLine());
    // A player chosen beside the cards answers the same pick lists, and the right button names the opponent.
    game_.players.lblAPLAYERS(0, Qt::LeftButton);
    fire(u"player.csp"_s);
    EXPECT_TRUE(lastLine().contains(english() ? u"Dale Whitlock"_s : u"Ντέιλ Γουίτλοκ"_s)) << qPrintable(lastLine());
    game_.players.lblAPLAYERS(1, Qt::RightButton);
    fire(u"duel.csp"_s);
    EXPECT_TRUE(lastLine().contains(english() ? u"Arden"_s : u"Άρντεν"_s)) << qPrintable(lastLine());
}

TEST_P(Evening, ProposalsAreOfferedTakenAndScanned) {
    const Control& first = form_.at(controls.lblPROPOSED, 1);
    EXPECT_EQ("1|N|player.csp|T:1##P:132", first.tag().toStdString());
    game_.proposals.lblPROPOSED(1);
    EXPECT_TRUE(lastLine().contains(english() ? u"Karas"_s : u"Καράς"_s)) << qPrintable(lastLine());
    EXPECT_EQ("Y", fromDatabase(u"select pc_used from proposedcard where pc_id = 1"_s).toStdString());
    // On air by another way: the scan finds it, marks it used and offers it no more.
    game_.players.lblAPLAYERS(7, Qt::LeftButton);
    fire(u"player.csp"_s);
    fire(u"scan.csp"_s);
    EXPECT_EQ("Y", fromDatabase(u"select pc_used from proposedcard where pc_id = 2"_s).toStdString());
    EXPECT_EQ("2|Y|player.csp|T:2##P:212", form_.at(controls.lblPROPOSED, 2).tag().toStdString());
    EXPECT_TRUE(lastLine().startsWith(u"mCG 1-21 UPDATE"_s)) << "what is on air does not come on again";
    EXPECT_EQ("N", fromDatabase(u"select pc_used from proposedcard where pc_id = 4"_s).toStdString());
    // A large graphic takes the lower third off, also from its slot.
    fire(u"titles.csp"_s);
    EXPECT_EQ("titles.csp", state_.ONAIR_TABLE.at(1, 2).toStdString());
    EXPECT_EQ("", state_.variables.text(u"LASTCARDTAG1-2").toStdString());
}

TEST_P(Evening, ClockScoresAndLanguageFollowWithoutATouch) {
    state_.variables.SetVar(u"@GAMEPERIOD", 4);
    fire(u"scorebug.csp"_s);
    hear(u"t2:41t"_s);
    EXPECT_TRUE(lastLine().startsWith(u"mCG 1-20 UPDATE"_s) && lastLine().contains(u"2:41"_s))
        << qPrintable(lastLine());
    const qsizetype sentOnce = graphics_.sent.size();
    hear(u"t2:41t"_s);
    for (int tick = 0; tick < 20; ++tick) game_.timedCards.tick();
    EXPECT_EQ(sentOnce, graphics_.sent.size()) << "nothing has changed";
    form_.at(controls.lblAutoScoreA).setText(u"81"_s);
    for (int tick = 0; tick < 10; ++tick) game_.timedCards.tick();
    EXPECT_TRUE(lastLine().contains(u"SCOREA\\\"><data type=\\\"txt\\\" ani=\\\"0\\\" value=\\\"81"_s))
        << qPrintable(lastLine());
    switchTo(english() ? u"GR"_s : u"EN"_s);
    EXPECT_TRUE(lastLine().contains(english() ? u"HBC"_s : u"ΛΙΜ"_s)) << qPrintable(lastLine());
    EXPECT_TRUE(lastLine().contains(english() ? u"Q4"_s : u"4ο"_s)) << qPrintable(lastLine());
    for (const QString& card : {u"titles.csp"_s, u"fulltime.csp"_s}) {
        fire(u"scorebug.csp"_s);
        fire(u"gameclock.csp"_s);
        fire(card);
        EXPECT_TRUE(graphics_.sent.contains(u"mCG 1-20 STOP 1"_s) && graphics_.sent.contains(u"mCG 1-23 STOP 1"_s));
        graphics_.sent.clear();
    }
    const qsizetype sent = graphics_.sent.size();
    hear(u"t2:40t"_s);
    EXPECT_EQ(sent, graphics_.sent.size());
}

TEST_P(Evening, AServerThatHasForgottenIsToldAnew) {
    const QString onAir = u"lblONAIR"_s;
    int connects = 0;
    const auto connect = [&] {
        graphics_.stage.clearChannel(1);
        state_.variables.SetVar(u"@MAINCONNECTS", ++connects);
        graphics_.sent.clear();
    };
    // Fired before there was a server, with a server, and after another has taken its place.
    for (const bool first : {true, false, false}) {
        for (const QString& card : {u"scorebug.csp"_s, u"gameclock.csp"_s, u"crawl.csp"_s, u"player.csp"_s}) fire(card);
        if (first) graphics_.refused.clear();
        connect();
        hear(u"t1:%1t"_s.arg(10 + connects));
        EXPECT_EQ(QStringList(), graphics_.sent) << "nothing is there to be brought up to date";
        for (const QString& card : {u"scorebug.csp"_s, u"gameclock.csp"_s, u"crawl.csp"_s, u"player.csp"_s}) {
            fire(card);
            EXPECT_TRUE(lastLine().contains(u" ADD 1 "_s)) << qPrintable(card + u": "_s + lastLine());
        }
        fire(u"crawl.csp"_s);
    }
    connect();
    fire(u"graphic_off.csp"_s);
    EXPECT_EQ("", label(onAir).toStdString()) << "nothing is on air any longer";
    fire(u"scorebug.csp"_s);
    fire(u"player.csp"_s);
    fire(u"lowerthird_off.csp"_s);
    EXPECT_EQ("ON AIR", label(onAir).toStdString());
    fire(state_.cards.functionKey(5).script);
    EXPECT_EQ("", QString(label(onAir) + label(u"lblONAIRCARD"_s)).toStdString());
    EXPECT_EQ(colours::kGreen, form_.at(controls.lblONAIRLAMP).backColour());
}

TEST_P(Evening, LiveTablesTakeThePlaceOfTheDemosFigures) {
    const auto write = [&](const QString& sql) { database_.execute({}, sql); };
    write(
        u"insert into live_game (home_name, away_name, home_score, away_score, period, home_fouls, away_fouls) "
        "values ('Harbour City', 'Northfield', 97, 88, 5, 3, 4)"_s);
    write(
        u"insert into live_player (side, shirt, starter, points, rebounds, fouls) values ('H', '34', 1, 31, 12, 2), "
        "('H', '18', 0, 9, 3, 4), ('A', '5', 1, 2, 1, 5)"_s);
    for (int number = 1; number <= 4; ++number) {
        write(
            u"insert into live_action (number, period, side, shirt, kind, success) values (%1, %1, 'H', '18', '3pt', %2)"_s
                .arg(number)
                .arg(number > 1));
    }
    for (int tick = 0; tick < 60; ++tick) game_.timedCards.tick();
    EXPECT_EQ("97", label(u"lblScoreA"_s).toStdString());
    EXPECT_EQ("88", state_.variables.text(u"@GREENSCOREB").toStdString());
    EXPECT_EQ("4", state_.variables.text(u"@FOULSAWAY").toStdString());
    fire(u"topscorers.csp"_s);
    EXPECT_TRUE(lastLine().contains(english() ? u"Giorgos Galanis"_s : u"Γιώργος Γαλάνης"_s)) << qPrintable(lastLine());
    fire(u"quarters.csp"_s);
    EXPECT_TRUE(lastLine().contains(u"R1C7"_s) == false && lastLine().contains(u"R1C8\\\""_s))
        << qPrintable(lastLine());
    fire(u"auto5ada.csp"_s);
    EXPECT_EQ("34", form_.at(controls.txtS5H, 0).text().toStdString());

    // What has happened is proposed once; taking it marks it.
    const QString proposed = u"select count(*) || ' ' || min(pc_tag) from proposedcard where pc_event is not null"_s;
    EXPECT_EQ("3 T:1##P:118", fromDatabase(proposed).toStdString());
    for (int tick = 0; tick < 120; ++tick) game_.timedCards.tick();
    EXPECT_EQ("3 T:1##P:118", fromDatabase(proposed).toStdString());
    const Control& offered = form_.at(controls.lblPROPOSED, 6);
    EXPECT_TRUE(offered.text().startsWith(english() ? u"Vance\r\n3 three-pointers"_s : u"Βανς\r\n3 τρίποντα"_s))
        << qPrintable(offered.text());
    game_.proposals.lblPROPOSED(6);
    EXPECT_EQ("Y", fromDatabase(u"select pc_used from proposedcard where pc_id = 6"_s).toStdString());
}

INSTANTIATE_TEST_SUITE_P(Packs, Evening, testing::Values("EN", "GR"),
                         [](const auto& pack) { return std::string(pack.param); });

TEST(Packs, DifferInWordsAlone) {
    const DemoFolder folder;
    ASSERT_TRUE(folder.isMade());
    const QStringList english = folder.scripts(u"EN"_s);
    EXPECT_EQ(english, folder.scripts(u"GR"_s));
    for (const QString& card : english)
        EXPECT_EQ(folder.script(u"EN"_s, card), folder.script(u"GR"_s, card)) << qPrintable(card);
    const auto names = [&](const QString& pack) {
        QStringList words;
        for (const QString& line : folder.script(pack, u"words.inc"_s).split(u'\n')) words += line.section(u';', 0, 0);
        return words;
    };
    EXPECT_EQ(names(u"EN"_s), names(u"GR"_s));
}

}  // namespace
}  // namespace zelvor
