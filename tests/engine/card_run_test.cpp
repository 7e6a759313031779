#include <gtest/gtest.h>

#include "engine/card_engine.h"
#include "support/fake_ports.h"

using namespace Qt::StringLiterals;

namespace zelvor {
namespace {

using Outcome = CardEngine::Outcome;

class CardRuns : public testing::Test, public test::EngineBench {};

TEST_F(CardRuns, NameTheirScriptAndReportAMissingOne) {
    EXPECT_EQ(u"a.csp b.csp c.Qrd d.csp"_s, CardEngine::scriptName(u"a.qrd b.QRD c.Qrd d.csp"_s));
    EXPECT_EQ(Outcome::NoScript, engine.SHOW_TVCARD(u"none.qrd"_s, false, false, {}));
    EXPECT_EQ(Outcome::NoScript, engine.SHOW_TVCARD(QString(), false, false, {}));
    EXPECT_EQ(u"|Card Script file:\r\n"_s + folder.packFile(u"TT", u"none.csp") + u"\r\n not exist."_s,
              operatorDesk.shown[0]);
    EXPECT_TRUE(state.lastCard.isEmpty());
}

TEST_F(CardRuns, ScriptsAndIncludesAreReadAgainWhenTheyChange) {
    write(u"QRD_TT/part.inc"_s, "CSPSEND~a\r\n");
    run("INCLUDE~part.inc\r\n");
    write(u"QRD_TT/part.inc"_s, "CSPSEND~bb\r\n");
    run("INCLUDE~part.inc\r\n");
    run("INCLUDE~part.inc\r\nCSPSEND~c\r\n");
    // Another version of the same size put in its place with its own time kept.
    const QString part = folder.resolve(folder.packFile(u"TT", u"part.inc"));
    const QDateTime before = QFileInfo(part).lastModified();
    write(u"QRD_TT/part.inc"_s, "CSPSEND~dd\r\n");
    QFile file(part);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite) && file.setFileTime(before, QFileDevice::FileModificationTime));
    EXPECT_EQ(Outcome::Ran, engine.SHOW_TVCARD(u"card.qrd"_s, false, false, {}));
    EXPECT_EQ((QStringList{u"ma"_s, u"mbb"_s, u"mbb"_s, u"mc"_s, u"mdd"_s, u"mc"_s}), graphics.sent);
}

TEST_F(CardRuns, HistoryAndLogTellWhatACardDid) {
    run("CLEARDATA\nSDATA~A;1\nSIMAGE~B;2;x\nSDATAREMOTE~C;3\nMAKEXML\nMAKEXMLREMOTE\nMAKEXML~N\nWRITELOG~hi {@N}\n");
    EXPECT_EQ((QStringList{u" > CLEAR-DATA"_s, u" > SDATA~t-0*A = 1"_s, u" > SIMAGE~i-2*B = x"_s,
                           u" > MAKEXML~@CASPARXML"_s, u" > MAKEXML~@N"_s}),
              graphics.history);
    EXPECT_EQ(state.variables.text(u"@N"), graphics.lastTemplate);
    EXPECT_TRUE(graphics.log.value(0).startsWith(u"-CARDLOG-:hi <templateData>"));
}

TEST_F(CardRuns, FinishUnlessLocked) {
    run("AUTOTIMECARD~t\nISTIME~Yes\nDISABLEPREVIEW~yes\n");
    EXPECT_EQ(u"ON AIR"_s, form.at(controls.lblONAIR).text());
    EXPECT_EQ(u"card.csp"_s, state.lastCard);
    EXPECT_TRUE(state.switches.IsTimeCard && state.switches.PreviewDisabled);
    form.at(controls.lblONAIR).setText({});
    form.at(controls.chkONAIRLOCK).setChecked(true);
    state.lastCard.clear();
    run("ISTIME~no\n");
    EXPECT_TRUE(form.at(controls.lblONAIR).text().isEmpty());
    EXPECT_EQ(u"card.csp"_s, state.lastCard);
    EXPECT_FALSE(state.switches.IsTimeCard || state.switches.PreviewDisabled);
}

TEST_F(CardRuns, DelayWaitsPastMidnightWhateverTheClockSays) {
    const QDateTime start = clock.time;
    EXPECT_EQ(Outcome::Ran, run("DELAY~3\nCSPSEND~x\n"));
    EXPECT_GT(start.msecsTo(clock.time), 3000);
    EXPECT_LT(start.msecsTo(clock.time), 3300);

    // Somebody sets the clock an hour back meanwhile.
    int waits = 0;
    clock.whileWaiting = [&] {
        if (++waits == 1) clock.set(-3'600'000);
    };
    EXPECT_EQ(Outcome::Ran, run("DELAY~3\n"));
    EXPECT_LT(waits, 33);
}

TEST_F(CardRuns, EndAtOnceWhenTheProgramCloses) {
    for (const char* waiting : {"DELAY~1000", "CSPSEND~PLAY", "BREAK~?"}) {
        EngineBench bench;
        const auto close = [&bench] { bench.program.closing.begin(); };
        bench.clock.whileWaiting = bench.graphics.whileSending = bench.operatorDesk.whileAsked = close;
        EXPECT_EQ(Outcome::Closed, bench.run(QByteArray(waiting) + "\nSETVAR~@AFTER;1\n")) << waiting;
        EXPECT_EQ(Outcome::Closed, bench.run("SETVAR~@AFTER;1\n"));
        EXPECT_EQ(nullptr, bench.state.variables.find(u"@AFTER"));
        EXPECT_TRUE(bench.form.at(controls.lblONAIR).text().isEmpty());
    }
}

TEST_F(CardRuns, ALongLoopLetsClearInAndNoCard) {
    const QByteArray loop = "SETVAR~@RECORDCOUNT;1e5\nFOREACHREC~I\nCSPSEND~x\nROF\n";
    const int turns = clock.turns;
    EXPECT_EQ(Outcome::Ran, run(loop));
    EXPECT_EQ(clock.turns, turns);
    graphics.sent.clear();
    graphics.whileSending = [this] { clock.time = clock.time.addMSecs(100); };
    clock.whileTurning = [this] {
        EXPECT_TRUE(program.databaseWait.isOn());
        program.clearing.begin();
    };
    EXPECT_EQ(Outcome::Cleared, run(loop));
    EXPECT_LT(graphics.sent.size(), 100);
}

TEST_F(CardRuns, ErrorsNameTheFileItsLineAndWhatIsMissing) {
    write(u"QRD_TT/part.inc"_s, "\n\nSDATA~A\n");
    const std::vector<std::pair<QByteArray, QString>> cases{
        {"\n\tON\n", u"line 2\terror 9\tSubscript out of range: ON~button"_s},
        {"X\n\nINCLUDE~part.inc\n",
         u"part.inc, line 3\terror 9\tSubscript out of range: SDATA~field;[animation;]value"_s},
        {"INCLUDE~part.inc\n\n", u"part.inc, line 3\terror 9"_s},
        {"X\n\nINCLUDE\n", u"line 3\terror 9\tSubscript out of range: INCLUDE~file"_s},
        {"\nINCLUDE~none.inc\n", u"line 2\terror 53\tFile not found"_s},
        {"PROPOSE~1;7|N|card.csp|P:1;x\n",
         u"line 1\terror 9\tSubscript out of range: PROPOSE~index;tag;caption;used"_s},
        {"\nIFL~1;=\n", u"line 2\terror 9\tSubscript out of range: IFL~left;operator;right~\"then"_s},
        {"CLEARDATA\n\nSDATA~B;1|2\nSDATAREMOTE~C;5|6\nMAKEXML\nMAKEXMLREMOTE\n",
         u"line 6\terror 9\tSubscript out of range: field t-0*C = 5|6"_s},
    };
    for (const auto& [script, logged] : cases) {
        EXPECT_EQ(Outcome::Failed, run(script));
        const QString line = files.readLines(folderOnDisk.filePath(u"errors.log"_s)).last();
        EXPECT_TRUE(line.contains(u"\tcard.csp\t"_s + logged)) << qPrintable(logged + u'\n' + line);
    }
}

TEST_F(CardRuns, AScanFiresEachProposalWhoseFiveConditionsHoldOnce) {
    // The record, what is on air as "row column card tag", whether a list is open, whether it fires.
    const QString here = u"1 2 stats.csp p:12"_s;
    const std::tuple<QString, QStringList, bool, bool> cases[]{
        {u"7|N|stats.csp|P:12"_s, {here}, false, true},
        {u"7|N|Stats.qrd|P:12"_s, {here}, false, true},
        {u"7|N|stats.csp|P:12"_s, {here, u"5 5 stats.csp P:12"_s}, false, true},
        {u"7|N|stats.csp|P:12"_s, {u"6 1 stats.csp P:12"_s, u"5 0 stats.csp P:12"_s}, false, false},
        {u"7|N|stats.csp|P:12"_s, {here}, true, false},
        {u"7|n|stats.csp|P:12"_s, {here}, false, false},
        {u"7|Y|stats.csp|P:12"_s, {here}, false, false},
        {u"7|N|other.csp|P:12"_s, {here}, false, false},
        {u"7|N|stats.csp|P:1"_s, {here}, false, false},
        {u"7"_s, {here}, false, false},
    };
    for (const auto& [record, onAir, listOpen, fires] : cases) {
        EngineBench bench;
        bench.write(u"QRD_TT/stats.csp"_s, "CSPSEND~fired\nSCANPROPOSED\n");
        bench.form.at(controls.lblPROPOSED, 3).setTag(record);
        for (const QString& slot : onAir) {
            const QStringList parts = slot.split(u' ');
            bench.state.ONAIR_TABLE.at(parts[0].toInt(), parts[1].toInt()) = parts[2];
            bench.state.variables.SetVar(u"LASTCARDTAG%1-%2"_s.arg(parts[0], parts[1]), parts[3]);
        }
        bench.state.variables.SetVar(u"AUTOTAG_P", u"another player"_s);
        bench.state.ask.ASK_OPEN = listOpen ? AskState::kYes : 0;
        bench.run("SCANPROPOSED\n");
        SCOPED_TRACE(record.toStdString());
        EXPECT_EQ(bench.graphics.sent.size(), fires ? 1 : 0);
        EXPECT_EQ(bench.database.statements.size(), fires ? 1 : 0);
        EXPECT_EQ(bench.state.variables.text(u"AUTOTAG_P"), fires ? u"12"_s : u"another player"_s);
        EXPECT_EQ(bench.form.at(controls.lblPROPOSED, 3).backColour() == colours::kUsedProposal, fires);
    }
}

TEST_F(CardRuns, AProposalWhoseCardDidNotRunIsNotUsedAndSaysWhy) {
    Control& label = form.at(controls.lblPROPOSED, 3);
    label.setTag(u"7|N|stats.csp|P:12"_s);
    label.setText(u"Top scorer"_s);
    state.ONAIR_TABLE.at(1, 2) = u"stats.csp"_s;
    state.variables.SetVar(u"LASTCARDTAG1-2", u"P:12"_s);
    run("SCANPROPOSED\n");
    EXPECT_EQ(label.text(), u"Top scorer\r\nno such card"_s);
    for (const auto& [script, words] : std::vector<std::pair<QByteArray, QString>>{
             {"SDATA\n", u"\r\nfailed"_s}, {"SQL~select 1\n", u"\r\nno data"_s}, {"X\n", QString()}}) {
        write(u"QRD_TT/stats.csp"_s, script);
        database.statements.clear();
        run("SCANPROPOSED\n");
        EXPECT_EQ(label.text(), u"Top scorer"_s + words);
        EXPECT_EQ(database.statements.filter(u"pc_used"_s).size(), words.isEmpty() ? 1 : 0);
        EXPECT_EQ(label.backColour() == colours::kUsedProposal, words.isEmpty());
    }
    write(u"QRD_TT/scan.csp"_s, "FUNCTIONCARD\nSCANPROPOSED\n");
    engine.SHOW_TVCARD(u"scan.csp"_s, false, false, {Asker::Kind::Operator, u"scan.csp"_s, CardPlace{1, 0}});
    EXPECT_EQ(state.lastCard, u"stats.csp"_s);
    EXPECT_FALSE(state.console.lastFired) << "the button that scans is not the one on air";
    write(u"QRD_TT/stats.csp"_s, "DELAY~9\n");
    clock.whileWaiting = [this] { program.clearing.begin(); };
    EXPECT_EQ(Outcome::Cleared, run("SCANPROPOSED\nCSPSEND~x\n"));
    EXPECT_TRUE(graphics.sent.isEmpty()) << "CLEAR ends the card that scans, too";
    EXPECT_EQ(label.text(), u"Top scorer"_s);
}

TEST_F(CardRuns, InsideOneAnotherEndWhenTooDeep) {
    graphics.whileSending = [this] { engine.SHOW_TVCARD(u"card.qrd"_s, false, false, {}); };
    run("CSPSEND~x\n");
    EXPECT_EQ(CardEngine::kDeepestRun, graphics.sent.size());
    ASSERT_EQ(1, operatorDesk.shown.size());
    EXPECT_TRUE(operatorDesk.shown[0].startsWith(u"Error 28"));
}

}  // namespace
}  // namespace zelvor
