#include "console_rules/card_console.h"

#include <array>
#include <utility>

#include "engine/on_air.h"
#include "engine/packs.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

// Frame6 ("Start 11") is meant to be missing: no tab shows or hides it.
constexpr std::array kTabPanels{&controls.Frame1, &controls.Frame2, &controls.Frame3,
                                &controls.Frame4, &controls.Frame5, &controls.Frame7};
static_assert(kTabPanels.size() == CardConsole::kTabs);

}  // namespace

CardConsole::CardConsole(CardEngine& engine) : engine_(engine), state_(engine.state()), form_(engine.form()) {
    // Timed cards, the feed and the general variables write what is shown here, too.
    connect(&switchTimer_, &QTimer::timeout, this, &CardConsole::showSwitches);
    switchTimer_.start(kSwitchInterval);
}

void CardConsole::answer(FormEvents& events) {
    events.onClick(controls.cmbCARD, [this](int index) { pressCard(index); });
    events.onClick(controls.cmdCARDBOX, [this](int index) { pressCardBox(index); });
    events.onClick(controls.GradientButtonS, [this](int index) { selectBox(index); });
    events.onClick(controls.GradientButtonAIR, [this](int) { CLEAR_TV(); });
    events.onClick(controls.cmdTAB, [this](int index) { showTab(index); });
    events.onClick(controls.cmdINVOKE, [this](int) { run(u"invoke.csp"_s); });
    events.onClick(controls.cmdAUTO5ADA, [this](int) { run(u"auto5ada.csp"_s); });
    events.onClick(controls.cmdAUTOCARD, [this](int) { SHOW_AUTO_CARD(); });
    events.onClick(controls.cmdCLEARTAG, [this](int) { clearTag(); });
    events.onClick(controls.lblFKEYTITLE, [this](int index) { functionKey(index + 1); });
}

void CardConsole::pressCard(int index) {
    fire(index, state_.console.playerSelected);
}

void CardConsole::pressCardBox(int index) {
    // The small button never takes the tagged player's answers: it is the way to be asked.
    fire(index, false);
}

void CardConsole::fire(int index, bool tagged) {
    if (!engine_.ports().clock.turnEvents(1)) return;
    state_.variables.SetVar(u"@CARD_BUTTON_INDEX", index);
    // The set and the script are taken now: a card that waits must not make this one fire from another set.
    const QString script = state_.cards.entry(state_.currentSet, index + 1).script;
    state_.console.lastFired = {state_.currentSet, index};
    Q_EMIT cardsChanged();
    run(script, tagged);
    engine_.ports().clock.turnEvents(1);
}

void CardConsole::run(const QString& script, bool tagged) {
    engine_.SHOW_TVCARD(script, tagged, false, {Asker::Kind::Operator, script});
    if (engine_.program().closing.hasBegun()) return;
    showSwitches();
    Q_EMIT cardsChanged();
}

void CardConsole::selectBox(int selector) {
    state_.currentSet = selector + 1;
    for (int i = 0; i < kSelectors; ++i) form_.at(controls.GradientButtonS, i).setChecked(i == selector);
    showCurrentSet(state_, form_);
    Q_EMIT cardsChanged();
}

void CardConsole::CLEAR_TV() {
    Q_EMIT clearing();
    run(state_.cards.clearCard);
    if (engine_.program().closing.hasBegun()) return;
    showClear(form_);
    form_.at(controls.GradientButtonAIR).setText(u"CLEAR"_s);
    if (const auto fired = std::exchange(state_.console.lastFired, std::nullopt)) {
        state_.cards.entry(fired->set, fired->index + 1).on = false;
        if (fired->set == state_.currentSet) {
            Control& button = form_.at(controls.cmbCARD, fired->index);
            button.setState(u"OFF"_s);
            button.setBackColour(std::nullopt);
        }
    }
    Q_EMIT cardsChanged();
}

void CardConsole::functionKey(int number) {
    if (number < 1 || number > kFiringFunctionKeys) return;
    const QString script = state_.cards.functionKey(number).script;
    if (!script.isEmpty()) run(script);
}

void CardConsole::showTab(int tab) {
    for (int i = 0; i < kTabs; ++i) {
        form_.at(*kTabPanels[i]).setVisible(i == tab);
        form_.at(controls.cmdTAB, i).setChecked(i == tab);
    }
}

void CardConsole::clearTag() {
    for (const ControlRow* row :
         {&controls.lblHPLAYERS, &controls.lblAPLAYERS, &controls.lblHTEAM, &controls.lblATEAM}) {
        for (Control* label : form_.named(*row)) {
            label->setForeColour(std::nullopt);
            label->setBackColour(std::nullopt);
        }
    }
    state_.console.playerSelected = false;
}

void CardConsole::SHOW_AUTO_CARD() {
    state_.variables.SetVar(u"@RETURNKEY", state_.ask.lastItemData);
    run(state_.variables.GetVar(u"@AUTOCARD").text());
}

void CardConsole::showLoaded() {
    const QString language = state_.language();
    if (std::exchange(shownLanguage_, language) != language) clearTag();
    LoadFkeys(state_, form_);
    showSwitches();
    Q_EMIT loaded();
    Q_EMIT cardsChanged();
}

void CardConsole::showSwitches() {
    form_.at(controls.picHideControls).setVisible(!state_.cards.showControls);
    Control& preview = form_.at(controls.lblPREVIEW);
    preview.setVisible(state_.preview && state_.cards.showPreview);
    preview.setEnabled(!state_.switches.PreviewDisabled);
    form_.at(controls.cmdAUTOCARD).setEnabled(!state_.variables.text(u"@AUTOCARD").isEmpty());
}

bool CardConsole::isLastFired(int index) const {
    return state_.console.lastFired == ConsoleMemory::CardButton{state_.currentSet, index};
}

const CardEntry& CardConsole::card(int index) const {
    return state_.cards.entry(state_.currentSet, index + 1);
}

QString CardConsole::troubleOf(int index) const {
    const auto& troubles = state_.console.troubles;
    const auto found = troubles.find(CardEngine::scriptName(card(index).script));
    return found == troubles.end() ? QString() : found->second;
}

QString CardConsole::keyOf(int index) const {
    const QString& script = card(index).script;
    if (script.isEmpty()) return {};
    for (int key = 1; key <= kFiringFunctionKeys; ++key) {
        if (state_.cards.functionKey(key).script.compare(script, Qt::CaseInsensitive) == 0)
            return u'F' + QString::number(key);
    }
    return {};
}

}  // namespace zelvor
