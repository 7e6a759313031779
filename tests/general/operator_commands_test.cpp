#include "general_rules/operator_commands.h"

#include <gtest/gtest.h>

#include "engine/defaults.h"
#include "support/fake_ports.h"

namespace zelvor {

using namespace Qt::StringLiterals;

namespace {

QByteArray cardTable(const QByteArray& card) {
    return "FKEYS:1|" + card + " key|x.qrd\nSETNO:1,Game\n" + card + ",x.qrd\n" + QByteArray(",\n").repeated(20);
}

// Remembers the calls, and what the console held at each of them.
class FakeForms : public OpenForms {
 public:
    explicit FakeForms(test::EngineBench& bench) : bench_(bench) {}

    QStringList names() const override { return open; }
    void show(const QString& name) override { note(u"show "_s + name, {name}); }
    void bringToFront(const QString& name) override { note(u"front "_s + name, {name}); }
    void close(const QString& name) override { note(u"close "_s + name, {}); }

    QStringList open;
    QStringList calls;

 private:
    void note(const QString& call, const QStringList& openAfterwards) {
        open = openAfterwards;
        calls += call + u' ' + bench_.state.language() + u' ' + bench_.form.at(controls.cmbCARD, 0).text() + u' ' +
                 bench_.state.variables.text(u"@GREETING");
    }
    test::EngineBench& bench_;
};

class OperatorCommandsTest : public testing::Test {
 protected:
    OperatorCommandsTest() {
        QDir(bench.folderOnDisk.path()).mkpath(u"MODULES/QRD_EN"_s);
        bench.write(u"QRD_TT/CARDS.TXT"_s, cardTable("Old"));
        bench.write(u"QRD_EN/CARDS.TXT"_s, cardTable("New"));
        bench.write(u"QRD_EN/GetGame.csp"_s, "SETVAR~@GREETING;game\n");
        bench.write(u"QRD_EN/infodata.dat"_s, "zelvor-grid 1\nhello\t\t@GREETING\t\n");
        form.at(controls.cmbLANG).setItems({{u"TT"_s, 1}, {u"EN"_s, 2}, {u"XX"_s, 3}});
        form.at(controls.cmbLANG).setPosition(0);
    }
    QString variable(QStringView name) { return bench.state.variables.text(name); }

    test::EngineBench bench;
    FormModel& form = bench.form;
    FakeForms forms{bench};
    GeneralVariables general{bench.state, bench.program, bench.operatorDesk};
    OperatorCommands commands{bench.engine, bench.packs, general, forms};
};

TEST_F(OperatorCommandsTest, EffectsAndPeriodFollowTheirBoxesAlsoWhenChosenAgain) {
    for (const auto& [text, stored] : {std::pair{u"off"_s, u"off"_s}, {u"Fast"_s, u"0"_s}}) {
        form.at(controls.cmbFADE, 2).setText(text);
        EXPECT_EQ(variable(u"@ROLL_SPEED"), stored);
    }
    form.at(controls.cbQt).setItems({{u"1"_s, 1}, {u"2"_s, 2}});
    form.at(controls.cbQt).setPosition(1);
    EXPECT_EQ(*bench.state.variables.find(u"@GAMEPERIOD"), Value(2.0));
    for (const QStringView name : {u"@GAMEPERIOD", u"@ROLL_SPEED"}) bench.state.variables.SetVar(name, u"card's"_s);
    commands.chooseAgain(form.at(controls.cbQt));
    commands.chooseAgain(form.at(controls.cmbFADE, 2));
    EXPECT_EQ(variable(u"@GAMEPERIOD"), u"2");
    EXPECT_EQ(variable(u"@ROLL_SPEED"), u"0");
}

TEST_F(OperatorCommandsTest, ALanguageChangeKeepsItsOrder) {
    form.at(controls.cmbLANG).setPosition(1);
    EXPECT_EQ(variable(u"@LANGUAGE"), u"TT") << "filling the list is no change";
    form.at(controls.cmbLANG).setPosition(0);
    bench.packs.LOAD_CARDS();
    commands.showGeneral();
    QObject::connect(&commands, &OperatorCommands::cardsLoaded, &commands, [this] { forms.calls += u"cards"_s; });
    bench.state.console.lastFired = {1, 3};
    form.at(controls.cmbLANG).setPosition(1);
    EXPECT_FALSE(bench.state.console.lastFired) << "a button of the cards before";
    EXPECT_EQ(forms.calls, (QStringList{u"show frmGENERAL TT Old "_s, u"close frmGENERAL EN Old "_s, u"cards"_s,
                                        u"show frmGENERAL EN New hello"_s}));
    EXPECT_EQ(form.at(controls.lblFKEYTITLE, 0).text(), u"New key");
    EXPECT_EQ(variable(u"@GREETING"), u"game") << "the start card runs last";

    forms.open.clear();
    forms.calls.clear();
    bench.state.console.lastFired = {1, 3};
    QString toldIn;
    bench.program.trap.setReporter([&](const ErrorPlace&, const QString&) { toldIn += variable(u"@LANGUAGE"); });
    form.at(controls.cmbLANG).setPosition(2);
    EXPECT_EQ(toldIn, u"EN") << "cards go on by themselves while it is told";
    EXPECT_EQ(forms.calls, QStringList());
    EXPECT_EQ(variable(u"@LANGUAGE"), u"EN") << "without a card table the language goes back";
    EXPECT_EQ(form.at(controls.cmbLANG).text(), u"EN");
    EXPECT_EQ(form.at(controls.cmbCARD, 0).text(), u"New");
    EXPECT_TRUE(bench.state.console.lastFired);
    form.at(controls.cmbLANG).setPosition(0);
    EXPECT_EQ(forms.calls, QStringList{u"cards"_s}) << "an editor that was closed stays closed";
}

TEST_F(OperatorCommandsTest, GeneralVariablesThatAreNotSavedAreNotLostUnasked) {
    form.at(controls.cmbLANG).setPosition(1);
    bench.state.variables.SetVar(u"@LANGUAGE", u"EN"_s);
    commands.showGeneral();
    general.grid().setValue(0, u"edited"_s);
    bench.write(u"QRD_EN/GetGame.csp"_s, "SETVAR~@HTLNAMEEN;Home\n");
    commands.chooseAgain(form.at(controls.cmbLANG));
    EXPECT_EQ(general.grid().cell(0).value(), u"edited");
    EXPECT_EQ(variable(u"@GREETING"), u"hello") << "nor is it applied";
    EXPECT_EQ(form.at(controls.lblHTEAM).text(), u"Home");
    bench.operatorDesk.answerYes = false;
    form.at(controls.cmbLANG).setPosition(0);
    EXPECT_EQ(form.at(controls.cmbLANG).text() + variable(u"@LANGUAGE"), u"ENEN");
    EXPECT_EQ(bench.operatorDesk.shown.size(), 1);
    bench.operatorDesk.answerYes = true;
    form.at(controls.cmbLANG).setPosition(0);
    EXPECT_EQ(variable(u"@LANGUAGE"), u"TT");
}

TEST_F(OperatorCommandsTest, GeneralVarsOpensWhatWasSavedAndKeepsAnOpenEditor) {
    bench.state.variables.SetVar(u"@LANGUAGE", u"EN"_s);
    commands.mnGeneralVars({});
    EXPECT_EQ(variable(u"@GREETING"), u"") << "opening does not apply";
    EXPECT_EQ(forms.calls, QStringList{u"front frmGENERAL EN  "_s});
    general.grid().setValue(0, u"edited"_s);
    commands.mnGeneralVars({});
    EXPECT_EQ(general.grid().cell(0).value(), u"edited");
    forms.open.clear();
    commands.mnGeneralVars({});
    EXPECT_EQ(general.grid().cell(0).value(), u"hello");
}

}  // namespace
}  // namespace zelvor
