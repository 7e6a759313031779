#include <gtest/gtest.h>

#include "console_rules/card_console.h"
#include "console_rules/card_troubles.h"
#include "console_rules/start_up.h"
#include "support/fake_ports.h"
#include "support/wait.h"

using namespace Qt::StringLiterals;

namespace zelvor::test {

// The card rules over an engine whose cards say on the link which of them ran.
class CardRules : public testing::Test {
 protected:
    CardRules() {
        for (const char* card : {"one", "two", "clear", "key", "invoke", "auto5ada"}) {
            bench.write(u"QRD_TT/%1.csp"_s.arg(QLatin1StringView(card)),
                        QByteArray("CSPSEND~") + card + " {@CARD_BUTTON_INDEX}\r\n");
        }
        set(1, 1) = {u"One"_s, {}, u"one.qrd"_s};
        set(2, 21) = {u"Two"_s, {}, u"two.csp"_s};
        bench.state.cards.clearCard = u"clear.csp"_s;
        bench.state.cards.functionKeys[10] = {u"Key"_s, u"key.csp"_s};
        bench.state.cards.functionKeys[11] = {u"Key"_s, u"key.csp"_s};
        bench.state.cards.functionKeys[3] = {u"Three"_s, u"one.csp"_s};
    }
    CardEntry& set(int number, int row) { return bench.state.cards.entry(number, row); }
    QStringList sent() { return std::exchange(bench.graphics.sent, {}); }
    bool makesRoom() const { return bench.program.pressRoom.isMade(bench.clock.steadyMilliseconds()); }

    EngineBench bench;
    CardConsole console{bench.engine};
};

TEST_F(CardRules, MarkACardWhoseLineWasRefused) {
    CardTroubles troubles(bench.engine);
    QObject::connect(&console, &CardConsole::clearing, &troubles, &CardTroubles::clear);
    int cleared = 0;
    QObject::connect(&troubles, &CardTroubles::cleared, &troubles, [&] { ++cleared; });
    const Control& line = bench.form.at(controls.lblONAIRTROUBLE);
    const auto press = [&](int button) {
        console.pressCard(button);
        return bench.graphics.sentFor.back();
    };
    const Asker one = press(0);
    troubles.add(one, u"404 CG ADD FAILED"_s);
    EXPECT_EQ(line.text(), u"One: 404 CG ADD FAILED");
    EXPECT_EQ(console.troubleOf(0), u"404 CG ADD FAILED");
    troubles.wentWell(one);
    EXPECT_EQ(line.text(), u"One: 404 CG ADD FAILED") << "another line of the same press";

    Asker timed{Asker::Kind::TimedCard, u"two.qrd"_s};
    timed.run = one.run + 1;
    troubles.add(timed, u"404 CG UPDATE FAILED"_s);
    troubles.add({}, u"400 ERROR"_s);
    EXPECT_EQ(line.text(), u"One: 404 CG ADD FAILED") << "neither takes the operator's place";
    console.selectBox(1);
    EXPECT_EQ(console.troubleOf(20), u"404 CG UPDATE FAILED");
    ++timed.run;
    troubles.wentWell(timed);
    EXPECT_EQ(console.troubleOf(20), QString());
    console.selectBox(0);
    EXPECT_EQ(console.troubleOf(0), u"404 CG ADD FAILED");
    EXPECT_EQ(cleared, 0);

    const std::vector<std::function<void()>> waysOut{
        [&] { troubles.wentWell(press(0)); },
        [&] {
            troubles.add(press(0), u"not sent: main link down"_s);
            console.CLEAR_TV();
        },
        [&] {
            troubles.add(timed, u"404 CG UPDATE FAILED"_s);
            ++timed.run;
            troubles.wentWell(timed);
        },
    };
    for (const auto& leave : waysOut) {
        leave();
        EXPECT_EQ(line.text() + console.troubleOf(0), QString());
        EXPECT_EQ(std::exchange(cleared, 0), 1) << "told once that nothing is marked";
    }
}

TEST_F(CardRules, ButtonsFireTheRowOfTheCurrentSet) {
    console.pressCard(0);
    EXPECT_EQ(sent(), QStringList{u"mone 0"_s});
    EXPECT_TRUE(console.isLastFired(0));

    console.selectBox(1);
    EXPECT_FALSE(console.isLastFired(0)) << "fired in another set";
    console.pressCardBox(20);
    EXPECT_EQ(sent(), QStringList{u"mtwo 20"_s});

    console.pressCard(3);
    EXPECT_EQ(sent(), QStringList());
    EXPECT_EQ(bench.form.at(controls.lblNOTE).text(), u"Card 4: no card in this place");
    EXPECT_THROW(console.pressCard(21), RunTimeError);
}

TEST_F(CardRules, PressesKeepTheirOrder) {
    // What is pressed in the turn of a press comes after it, from the set that was seen.
    bench.clock.whileTurning = [this] {
        EXPECT_TRUE(makesRoom()) << "no card by itself before it";
        console.functionKey(10);
        console.selectBox(1);
    };
    console.pressCard(0);
    EXPECT_EQ(sent(), (QStringList{u"mone 0"_s, u"mkey 0"_s}));
    EXPECT_FALSE(makesRoom());

    // A card changes the set and holds the console: the next press was made on what stood there before.
    console.selectBox(0);
    console.cardSeen(0);
    bench.state.currentSet = 2;
    console.cardGoesDown(0);
    console.cardSeen(0);
    console.pressCard(0);
    EXPECT_EQ(sent(), QStringList{u"mone 0"_s});

    // While a card waits another one runs inside it, also one that was pressed in the first one's turn.
    console.selectBox(0);
    bench.write(u"QRD_TT/one.csp"_s, "CSPSEND~begins\r\nDELAY~1\r\nCSPSEND~ends\r\n");
    bench.clock.whileTurning = [this] { console.functionKey(10); };
    bench.clock.whileWaiting = [] { QCoreApplication::processEvents(); };
    console.pressCard(0);
    EXPECT_EQ(sent(), (QStringList{u"mbegins"_s, u"mkey 0"_s, u"mends"_s}));

    // In the pause before PLAY another one of his runs inside as well, but never inside a card that runs by itself.
    bench.write(u"QRD_TT/one.csp"_s, "CSPSEND~PLAY 1\r\nCSPSEND~ends\r\n");
    int longPause = 0;  // milliseconds
    int pauses = 1;     // one inside the other
    bool isHeld = false;
    bench.graphics.whileSending = [&] {
        if (bench.graphics.sent.size() > pauses) return;
        if (bench.graphics.sent.size() == pauses) {
            console.functionKey(10);
            isHeld = makesRoom();
        } else {
            bench.engine.SHOW_TVCARD(u"one.qrd"_s, false, false, {Asker::Kind::TimedCard, u"one.qrd"_s});
        }
        bench.clock.time = bench.clock.time.addMSecs(longPause);
        QElapsedTimer looks;
        for (looks.start(); looks.elapsed() < 20;) QCoreApplication::processEvents();
    };
    const Control& note = bench.form.at(controls.lblNOTE);
    const auto play = [&](Asker::Kind who) {
        bench.engine.SHOW_TVCARD(u"one.qrd"_s, false, false, {who, u"one.qrd"_s});
        const qsizetype within = bench.graphics.sent.size();
        EXPECT_EQ(isHeld, who != Asker::Kind::Operator);
        EXPECT_TRUE(waitUntil([&] { return bench.graphics.sent.size() == 2 * pauses + 1 || !note.text().isEmpty(); }));
        const QStringList all = sent();
        return QString(all.first(within).join(u' ') + u" | "_s + all.mid(within).join(u' '));
    };
    EXPECT_EQ(play(Asker::Kind::Operator), u"mPLAY 1 mkey 0 mends | "_s);
    EXPECT_EQ(play(Asker::Kind::TimedCard), u"mPLAY 1 mends | mkey 0"_s);
    pauses = 2;
    EXPECT_EQ(play(Asker::Kind::TimedCard), u"mPLAY 1 mPLAY 1 mends mends | mkey 0"_s);
    pauses = 1;
    longPause = 1600;
    EXPECT_EQ(play(Asker::Kind::TimeCard), u"mPLAY 1 mends | "_s);
    EXPECT_EQ(note.text(), u"F10 pressed 1.6 s ago: not fired");

    // Many at once: two at most stand in their pauses, and each is fired.
    sent();
    int pausing = 0;
    int deepest = 0;
    int left = 6;
    bench.graphics.whileSending = [&] {
        if (!bench.graphics.sent.back().contains(u"PLAY")) return;
        deepest = std::max(deepest, ++pausing);
        if (left-- > 0) console.functionKey(3);
        QElapsedTimer looks;
        for (looks.start(); looks.elapsed() < 10;) QCoreApplication::processEvents();
        --pausing;
    };
    console.functionKey(3);
    EXPECT_TRUE(waitUntil([&] { return bench.graphics.sent.size() == 14; })) << sent().join(u' ').toStdString();
    EXPECT_EQ(deepest, 2);
    bench.graphics.whileSending = {};
    sent();

    // Too late is told of each, until a press that was made afterwards; CLEAR is never too late.
    // The key, the milliseconds that it has waited, what is sent, what is said.
    const std::tuple<int, int, const char*, QString> presses[] = {
        {3, 3120, "", u"F3 pressed 3.1 s ago: not fired"_s},
        {10, 2080, "", u"F3, F10 pressed 2.1 s ago: not fired"_s},
        {10, 900, "mkey 0", u"F3, F10 pressed 2.1 s ago: not fired"_s},
        {10, 0, "mkey 0", u""_s},
        {3, 3120, "", u"F3 pressed 3.1 s ago: not fired"_s}};
    for (const auto& [key, waited, line, says] : presses) {
        console.presses().setWaited([waited = waited] { return waited; });
        console.functionKey(key);
        EXPECT_EQ(sent().join(u' '), QLatin1StringView(line));
        EXPECT_EQ(note.text(), says);
    }
    console.pressClear();
    EXPECT_EQ(sent(), QStringList{u"mclear 0"_s});
    EXPECT_EQ(note.text(), u"");
}

TEST_F(CardRules, HisOwnPressesComeBeforeThoseFromOutside) {
    const Presser outside{u"remote"_s, u"HTTP 10.0.0.5"_s, 1};
    bench.write(u"QRD_TT/two.csp"_s, "CSPSEND~PLAY\r\n");
    const auto pressAll = [&] {
        console.fireScript(u"a"_s, u"auto5ada.csp"_s, outside);
        console.functionKey(10);
        console.fireScript(u"b"_s, u"auto5ada.csp"_s, outside);
        console.functionKey(3);
    };
    const QStringList inOrder{u"mkey "_s, u"mone "_s, u"mauto5ada "_s, u"mauto5ada "_s};
    bench.clock.whileTurning = pressAll;
    console.fireScript(u"clear"_s, u"clear.csp"_s, outside);
    EXPECT_EQ(sent(), QStringList{u"mclear "_s} + inOrder);

    // In a pause before PLAY his begin, those from outside wait for its end: his own card is held by none of them.
    for (const Presser& presser : {Presser{u"button"_s}, outside}) {
        bench.graphics.whileSending = [&, pressed = false]() mutable {
            if (!std::exchange(pressed, true)) pressAll();
            QElapsedTimer looks;
            for (looks.start(); looks.elapsed() < 20;) QCoreApplication::processEvents();
            bench.graphics.sent += u"over"_s;
        };
        console.fireScript(u"two"_s, u"two.csp"_s, presser);
        EXPECT_TRUE(waitUntil([&] { return bench.graphics.sent.size() == 10; }));
        EXPECT_EQ(sent().join(u' '), u"mPLAY mkey  over mone  over over mauto5ada  over mauto5ada  over");
    }
}

TEST_F(CardRules, ClearEndsWhatWaits) {
    bool cleared = false;
    const auto clear = [&] {
        if (!std::exchange(cleared, true)) console.pressClear();
    };
    for (const char* waits : {"DELAY~10", "CSPSEND~PLAY 1", "BREAK~go on?", "LOOPPAGE~again?"}) {
        SCOPED_TRACE(waits);
        bench.write(u"QRD_TT/one.csp"_s, "ON~0\r\n" + QByteArray(waits) + "\r\nCSPSEND~after\r\n");
        bench.graphics.whileSending = bench.clock.whileWaiting = bench.operatorDesk.whileAsked = clear;
        cleared = false;
        console.pressCard(0);
        EXPECT_TRUE(cleared);
        const bool sends = QByteArrayView(waits).contains("PLAY");
        EXPECT_EQ(sent(), (sends ? QStringList{u"mPLAY 1"_s} : QStringList()) + QStringList{u"mclear 0"_s});
        EXPECT_EQ(bench.form.at(controls.lblONAIR).text(), u"") << "nothing says that it is on air";
    }
    // Pressed in the turn before a card, it takes the card along.
    bench.operatorDesk.whileAsked = {};
    bench.clock.whileTurning = [this] {
        console.functionKey(10);
        console.pressClear();
    };
    console.pressCard(0);
    EXPECT_EQ(sent(), QStringList{u"mclear 0"_s});
}

TEST_F(CardRules, NothingRunsInsideAWaitForTheDatabase) {
    bench.write(u"QRD_TT/one.csp"_s, "CSPSEND~begins\r\nSQLU~slow\r\nCSPSEND~ends\r\n");
    const auto pressKey = [this] { console.functionKey(10); };
    const auto pressClear = [this] {
        console.functionKey(10);
        console.pressClear();
    };
    const auto fire = [this] { console.pressCard(0); };
    const auto runByItself = [this] {
        bench.engine.SHOW_TVCARD(u"one.csp"_s, false, false, {Asker::Kind::TimedCard, u"one.csp"_s});
    };
    const auto pressAsItBegins = [&] {
        bench.clock.whileTurning = runByItself;
        console.functionKey(10);
    };
    struct Case {
        const char* what;
        std::function<void()> begins;
        std::function<void()> meanwhile;
        QStringList sent;
    };
    const Case cases[] = {
        {"his own card is waited for", fire, pressKey, {u"mbegins"_s, u"mends"_s, u"mkey 0"_s}},
        {"one that runs by itself makes room", runByItself, pressKey, {u"mbegins"_s, u"mkey 0"_s}},
        {"also for a press made before", pressAsItBegins, [] {}, {u"mbegins"_s, u"mkey 0"_s}},
        {"CLEAR ends either", fire, pressClear, {u"mbegins"_s, u"mclear 0"_s}},
        {"and comes before what waits", runByItself, pressClear, {u"mbegins"_s, u"mclear 0"_s}},
    };
    for (const Case& each : cases) {
        SCOPED_TRACE(each.what);
        bench.database.whileWaiting = [&] {
            each.meanwhile();
            QCoreApplication::processEvents();
            EXPECT_EQ(bench.graphics.sent, QStringList{u"mbegins"_s});
        };
        each.begins();
        QCoreApplication::processEvents();
        EXPECT_EQ(sent(), each.sent);
    }
    EXPECT_TRUE(bench.operatorDesk.shown.isEmpty()) << bench.operatorDesk.shown.join(u'\n').toStdString();
}

TEST_F(CardRules, LastFiredIsTheCardThatWentOnAir) {
    console.pressCard(0);
    EXPECT_TRUE(console.isLastFired(0));
    bench.write(u"QRD_TT/quiet.csp"_s, "FUNCTIONCARD\r\n");
    bench.write(u"QRD_TT/fails.csp"_s, "DELAY~x\r\n");
    int row = 2;
    for (const QString& script : {u"quiet.csp"_s, u"fails.csp"_s, u"missing.csp"_s, QString()}) {
        set(1, row) = {u"x"_s, {}, script};
        console.pressCard(row++ - 1);
        EXPECT_TRUE(console.isLastFired(0)) << script.toStdString();
    }
    set(1, row) = {u"Key"_s, {}, u"key.qrd"_s};
    console.functionKey(10);
    EXPECT_TRUE(console.isLastFired(row - 1)) << "a function key's card";
    set(1, row).on = true;
    console.pressClear();
    EXPECT_FALSE(set(1, row).on);
    bench.write(u"QRD_TT/one.csp"_s, "SETVAR~@A;1\r\nDELAY~1\r\n");
    bench.clock.whileWaiting = [this] { set(1, 1) = {u"Another"_s, {}, u"two.csp"_s}; };
    console.pressCard(0);
    EXPECT_FALSE(console.isLastFired(0)) << "other cards were loaded meanwhile";
}

TEST_F(CardRules, FunctionKeysOneToTen) {
    for (const int key : {0, 1, 11, 12, 13}) console.functionKey(key);
    EXPECT_TRUE(sent().isEmpty());
    console.functionKey(10);
    EXPECT_EQ(sent(), QStringList{u"mkey "_s});
    console.showLoaded();
    EXPECT_TRUE(bench.form.at(controls.lblFKEYTITLE, 2).visible());
    EXPECT_FALSE(bench.form.at(controls.lblFKEYTITLE, 1).visible());
}

TEST_F(CardRules, ClearRunsTheClearCardAndResetsTheLastButton) {
    Control& onAir = bench.form.at(controls.lblONAIR);
    console.CLEAR_TV();
    EXPECT_EQ(sent(), QStringList{u"mclear "_s});
    EXPECT_EQ(onAir.text(), u"");

    console.pressCard(0);
    set(1, 1).on = true;
    set(1, 2).on = true;
    bench.form.at(controls.cmbCARD, 0).setState(u"ON"_s);
    bench.form.at(controls.cmbCARD, 1).setBackColour(colours::kRed);
    EXPECT_EQ(onAir.text(), u"ON AIR");
    EXPECT_EQ(bench.form.at(controls.lblONAIRCARD).text(), u"One");
    bench.form.at(controls.GradientButtonAIR).setText(u"x"_s);
    console.CLEAR_TV();
    EXPECT_EQ(bench.form.at(controls.lblONAIRCARD).text(), u"");
    EXPECT_EQ(bench.form.at(controls.lblONAIRLAMP).backColour(), colours::kGreen);
    EXPECT_EQ(bench.form.at(controls.GradientButtonAIR).text(), u"CLEAR");
    EXPECT_FALSE(set(1, 1).on);
    EXPECT_EQ(bench.form.at(controls.cmbCARD, 0).state(), u"OFF");
    EXPECT_TRUE(set(1, 2).on) << "only the button fired last is reset";
    EXPECT_EQ(bench.form.at(controls.cmbCARD, 1).backColour(), colours::kRed);
    EXPECT_FALSE(bench.state.console.lastFired);
}

TEST_F(CardRules, ClicksReachTheirRules) {
    FormEvents events(bench.trap);
    console.answer(events);
    bench.form.at(controls.lblATEAM).setForeColour(colours::kRed);
    bench.state.console.playerSelected = true;
    events.click(*bench.form.find(u"cmdCLEARTAG"_s));
    EXPECT_EQ(bench.form.at(controls.lblATEAM).foreColour(), std::nullopt);
    EXPECT_FALSE(bench.state.console.playerSelected);
    // An error in a handler ends there, with one message.
    events.onClick(controls.cmdMenu, [](int) { throw RunTimeError(ErrorNumber::TypeMismatch); });
    events.click(bench.form.at(controls.cmdMenu));
    EXPECT_TRUE(bench.operatorDesk.shown.last().contains(u"Location: ZELVOR_BASKET.frmMAIN.cmdMenu_Click"));
}

TEST_F(CardRules, AutoCardTakesTheKeyOfThePickList) {
    FormEvents events(bench.trap);
    console.answer(events);
    const Control& button = bench.form.at(controls.cmdAUTOCARD);
    EXPECT_FALSE(button.enabled());
    bench.state.ask.lastItemData = u"17"_s;
    // As a timed card may do.
    bench.state.variables.SetVar(u"@AUTOCARD", u"one.csp"_s);
    EXPECT_TRUE(waitUntil([&] { return button.enabled(); }));
    events.click(button);
    EXPECT_EQ(bench.state.variables.text(u"@RETURNKEY"), u"17");
    EXPECT_EQ(sent(), QStringList{u"mone "_s});
}

TEST_F(CardRules, SwitchesOfThePack) {
    Control& preview = bench.form.at(controls.lblPREVIEW);
    bench.state.preview = true;
    bench.state.cards.showControls = false;
    bench.state.switches.PreviewDisabled = true;
    console.showLoaded();
    EXPECT_TRUE(bench.form.at(controls.picHideControls).visible());
    EXPECT_TRUE(preview.visible());
    EXPECT_FALSE(preview.enabled());
    // The players of a pack stay chosen while its cards are loaded again, not when another's are.
    for (const bool sameLanguage : {true, false}) {
        bench.state.console.playerSelected = true;
        bench.form.at(controls.lblHPLAYERS, 3).setForeColour(colours::kGreen);
        if (!sameLanguage) bench.state.variables.SetVar(u"@LANGUAGE", u"XX"_s);
        console.showLoaded();
        EXPECT_EQ(bench.state.console.playerSelected, sameLanguage);
        EXPECT_EQ(bench.form.at(controls.lblHPLAYERS, 3).foreColour().has_value(), sameLanguage);
    }
    bench.state.cards.showPreview = false;
    console.showLoaded();
    EXPECT_FALSE(preview.visible());
}

// The load sequence calls its steps in the required order, and goes on past one that fails.
TEST_F(CardRules, StartUpOrder) {
    bench.write(u"QRD_TT/GetGame.csp"_s, "CSPSEND~game {@FADE_IN} {@CRAWLSPEED}\r\nSETVAR~@HTLNAMEEN;Harbour City\r\n");
    QStringList calls;
    const auto note = [&](const char* name) { return [&calls, name] { calls += QLatin1StringView(name); }; };
    StartUp::Steps steps{note("feed"), note("packs"),      note("window"),  note("database"), note("cards"),
                         note("ask"),  note("selections"), note("general"), note("timed")};
    steps.CONNECTDATABASE = [&] {
        calls += u"database"_s;
        throw RunTimeError(ErrorNumber::DatabaseError);
    };
    steps.LOAD_ASK = [&] {
        EXPECT_EQ(bench.state.variables.find(u"@FADE_IN"), nullptr);
        EXPECT_EQ(bench.state.variables.text(u"@TIMER"), u"0:00");
        calls += u"ask"_s;
    };
    steps.LoadSelections = [&] {
        EXPECT_EQ(bench.form.at(controls.lblHTEAM).text(), u"Harbour City");
        EXPECT_EQ(bench.form.at(controls.lblONAIR).text(), u"");
        calls += u"selections"_s;
    };
    bench.state.currentSet = 3;
    StartUp start(bench.engine, console, steps);
    start.run();
    EXPECT_EQ(calls.join(u' '), u"feed packs window database cards ask selections general timed");
    EXPECT_EQ(sent(), QStringList{u"mgame 10 4"_s});
    EXPECT_EQ(bench.operatorDesk.shown.size(), 1);
    EXPECT_EQ(bench.state.currentSet, 1);
    EXPECT_TRUE(bench.form.at(controls.Frame5).visible());

    // The preview instance has no feed; a program that closes during a question ends the sequence there.
    calls.clear();
    bench.state.preview = true;
    steps.CONNECTDATABASE = [&] { bench.program.closing.begin(); };
    StartUp preview(bench.engine, console, steps);
    preview.run();
    EXPECT_EQ(calls, (QStringList{u"packs"_s, u"window"_s}));
    EXPECT_TRUE(preview.caption().startsWith(u"Preview Zelvor Cards ("));
}

TEST_F(CardRules, FoundByAnyPartInEitherAlphabet) {
    set(1, 2) = {u"Ο Λάσκαρης σκοράρει"_s, {}, u"scorer.csp"_s};
    set(2, 1) = {u"Διαιτητές"_s, {}, u"referees.csp"_s};
    const auto newList = [&] {
        return FindList(findable(bench.state, bench.program.folder, {}), console.recentlyFired());
    };
    const auto captions = [&](const QString& typed) {
        QStringList found;
        FindList list = newList();
        for (const FindEntry* each : list.narrowed(typed)) found += each->caption;
        return found;
    };
    const QStringList scorer{u"Ο Λάσκαρης σκοράρει"_s};
    for (const QString& typed : {u"λασκ"_s, u"ΛΑΣΚΑΡΗΣ"_s, u"laskar"_s, u"σκοραρ λασ"_s, u"  Laskaris"_s})
        EXPECT_EQ(captions(typed), scorer) << typed.toStdString();
    EXPECT_EQ(captions(u"diait"_s), QStringList{u"Διαιτητές"_s});
    EXPECT_EQ(captions(u"laskarx"_s), QStringList());

    const auto entry = [&](const QString& typed) { return *newList().narrowed(typed).front(); };
    // Opening costs what is shown alone, however much there is to find.
    FindList opened = newList();
    const std::size_t all = opened.narrowed({}).size();
    EXPECT_EQ(opened.folded(), 0);
    for (const QString& typed : {u"o"_s, u"on"_s, u"o"_s}) EXPECT_LT(opened.narrowed(typed).size(), all);
    EXPECT_EQ(opened.folded(), static_cast<qsizetype>(all)) << "each once";
    EXPECT_EQ(entry({}).caption, u"One") << "the current set's first card";
    bench.state.console.playerSelected = true;
    console.pressFound(entry(u"Two"_s), false);
    console.functionKey(10);
    console.pressClear();
    EXPECT_EQ(sent(), (QStringList{u"mtwo 20"_s, u"mkey 20"_s, u"mclear 20"_s}));
    EXPECT_EQ(captions({}).first(3), (QStringList{u"Key"_s, u"Two"_s, u"One"_s})) << "CLEAR is no card";
    // What was listed is not fired once another pack's cards are there.
    const FindEntry old = entry(u"Two"_s);
    bench.state.variables.SetVar(u"@LANGUAGE", u"GR"_s);
    console.pressFound(old, false);
    EXPECT_EQ(sent(), QStringList());
}

}  // namespace zelvor::test
