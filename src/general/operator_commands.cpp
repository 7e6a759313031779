#include "general_rules/operator_commands.h"

#include <QScopedValueRollback>

#include "base/number.h"
#include "base/translate.h"
#include "engine/defaults.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

const QString kGeneralForm = u"frmGENERAL"_s;

// Meant, though it looks crossed: "Off" is the shortest effect, "Fast" none at all.
QString effectSpeed(const QString& text) {
    if (text == u"Off") return u"1"_s;
    if (text == u"Fast") return u"0"_s;
    return text;
}

}  // namespace

OperatorCommands::OperatorCommands(CardEngine& engine, Packs& packs, GeneralVariables& general, OpenForms& forms)
    : engine_(engine),
      packs_(packs),
      general_(general),
      forms_(forms),
      state_(engine.state()),
      form_(engine.form()),
      languages_(form_.at(controls.cmbLANG)) {
    languages_.setEnabled(false);
    connect(&form_, &FormModel::changed, this, [this](const Control* control, Control::Property property) {
        if (property == Control::Property::Text) take(*control, u"_Change"_s);
    });
}

void OperatorCommands::chooseAgain(const Control& list) {
    take(list, u"_Click"_s);
}

void OperatorCommands::take(const Control& control, const QString& event) {
    ErrorPlace place;
    place.procedure = u"frmMAIN."_s + control.name() + event;
    engine_.program().trap.run(place, ErrorTrap::Tell::Operator, [&] {
        if (control.is(controls.cmbFADE)) takeEffect(control);
        if (control.is(controls.cbQt)) takePeriod(control);
        // Filling the list at the start is no change.
        const bool isChosen = control.enabled() && control.position() >= 0 && !goingBack_;
        if (&control == &languages_ && isChosen) changeLanguage(control.text());
    });
}

void OperatorCommands::takeEffect(const Control& box) {
    state_.variables.SetVar(kEffectVariables.at(box.index()), effectSpeed(box.text()));
}

void OperatorCommands::takePeriod(const Control& box) {
    state_.variables.SetVar(u"@GAMEPERIOD", Val(box.text()));
}

void OperatorCommands::cmdSCREENMODE(int button) {
    const bool wide = button == 1;
    paintScreenMode(form_, wide);
    state_.variables.SetVar(u"@SCREEN_MODE", wide ? u"16_9"_s : u"4_3"_s);
}

void OperatorCommands::mnSet169() {
    state_.variables.SetVar(u"@SCREEN_MODE", u"16_9"_s);
    form_.at(controls.mnSet169).setChecked(true);
    form_.at(controls.mnSet43).setChecked(false);
}

void OperatorCommands::mnSet43() {
    state_.variables.SetVar(u"@SCREEN_MODE", u"4_3"_s);
    form_.at(controls.mnSet169).setChecked(false);
    form_.at(controls.mnSet43).setChecked(true);
}

void OperatorCommands::mnReloadVar() {
    engine_.SHOW_TVCARD(CardEngine::kStartCard, false, false, {Asker::Kind::Operator, CardEngine::kStartCard});
}

void OperatorCommands::mnGeneralVars(const Asker& asker) {
    // An open editor keeps what is being edited.
    if (!IsFormOpen(forms_, kGeneralForm)) general_.load();
    if (asker.isAttended()) {
        forms_.bringToFront(kGeneralForm);
    } else {
        forms_.show(kGeneralForm);
    }
}

void OperatorCommands::showGeneral() {
    general_.load();
    general_.apply();
    forms_.show(kGeneralForm);
    language_ = state_.language();
    languages_.setEnabled(true);
}

void OperatorCommands::changeLanguage(const QString& language) {
    const bool isOther = language != language_;
    if (!packs_.hasCards(language) || (isOther && !mayLeaveGeneral())) {
        const QScopedValueRollback goingBack(goingBack_, true);
        languages_.setText(language_);
        return;
    }
    state_.variables.SetVar(u"@LANGUAGE", language);
    language_ = language;
    const bool reopens = isOther && IsFormOpen(forms_, kGeneralForm);
    if (reopens) forms_.close(kGeneralForm);
    packs_.LOAD_CARDS();
    LoadFkeys(state_, form_);
    Q_EMIT cardsLoaded();
    if (isOther) {
        general_.load();
        general_.apply();
    }
    if (reopens) forms_.show(kGeneralForm);
    // No card begins while the database is waited for.
    if (engine_.program().databaseWait.isOn()) {
        Q_EMIT reloadWanted();
    } else {
        mnReloadVar();
    }
}

bool OperatorCommands::mayLeaveGeneral() {
    return !general_.grid().hasUnsaved() ||
           engine_.ports().operatorDesk.yesNo(
               {}, u"General Vars"_s,
               translate("general", "There are changes that are not saved. Change the language without them?"));
}

QString OperatorCommands::mnDisplayVars() const {
    QString text = u"Stored Variables (pasted to clipboard)\r\n"_s;
    state_.variables.forEach(
        [&text](const QString& name, const Value& value) { text += name + u" = "_s + value.text() + u"\r\n"_s; });
    return text;
}

}  // namespace zelvor
