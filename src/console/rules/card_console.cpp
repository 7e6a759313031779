#include "console_rules/card_console.h"

#include <algorithm>
#include <array>
#include <utility>

#include "base/translate.h"
#include "engine/on_air.h"
#include "engine/packs.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

const Presser kButton{u"button"_s};

// How the operator is told of it.
QString told(const QString& name, const Presser& presser) {
    return presser.from.isEmpty() ? name : name + u" ("_s + presser.from + u')';
}

// Frame6 ("Start 11") is meant to be missing: no tab shows or hides it.
constexpr std::array kTabPanels{&controls.Frame1, &controls.Frame2, &controls.Frame3,
                                &controls.Frame4, &controls.Frame5, &controls.Frame7};
static_assert(kTabPanels.size() == CardConsole::kTabs);

}  // namespace

CardConsole::CardConsole(CardEngine& engine)
    : engine_(engine), state_(engine.state()), form_(engine.form()), presses_(engine), note_(engine.form()) {
    connect(&presses_, &Presses::made, &note_, &StatusNote::clear);
    connect(&presses_, &Presses::late, this, [this](const QStringList& names, const QString& seconds) {
        note_.say(translate("console", "%1 pressed %2 s ago: not fired").arg(names.join(u", "_s), seconds));
    });
    connect(&engine.program().clearing, &Clearing::pressed, this, [this] { pressClear(); });
    // Timed cards, the feed and the general variables write what is shown here, too.
    connect(&switchTimer_, &QTimer::timeout, this, &CardConsole::showSwitches);
    switchTimer_.start(kSwitchInterval);
}

void CardConsole::answer(FormEvents& events) {
    events.onClick(controls.cmbCARD, [this](int index) { pressCard(index); });
    events.onClick(controls.cmdCARDBOX, [this](int index) { pressCardBox(index); });
    events.onClick(controls.GradientButtonS, [this](int index) { selectBox(index); });
    events.onClick(controls.GradientButtonAIR, [this](int) { pressClear(); });
    events.onClick(controls.cmdTAB, [this](int index) { showTab(index); });
    events.onClick(controls.cmdINVOKE, [this](int) { pressScript(translate("caption", "Invoke"), u"invoke.csp"_s); });
    events.onClick(controls.cmdAUTO5ADA,
                   [this](int) { pressScript(translate("caption", "Auto five"), u"auto5ada.csp"_s); });
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

CardConsole::SeenCard CardConsole::cardAt(CardPlace place) const {
    const CardEntry& entry = state_.cards.entry(place.set, place.index + 1);
    return {place, entry.shownCaption(), entry.script, state_.language()};
}

void CardConsole::cardSeen(int index) {
    seen_.at(index) = cardAt({state_.currentSet, index});
}

void CardConsole::cardGoesDown(int index) {
    down_ = seen_.at(index);
}

void CardConsole::fire(int index, bool tagged) {
    const std::optional<SeenCard> seen = std::exchange(down_, std::nullopt);
    fire(seen && seen->place.index == index ? *seen : cardAt({state_.currentSet, index}), tagged, kButton);
}

void CardConsole::fireCard(CardPlace place, const Presser& presser) {
    fire(cardAt(place), state_.console.playerSelected, presser);
}

void CardConsole::fire(const SeenCard& card, bool tagged, const Presser& presser) {
    const QString name = told(
        card.caption.isEmpty() ? translate("console", "Card %1").arg(card.place.index + 1) : card.caption, presser);
    if (card.script.isEmpty()) {
        note_.say(translate("console", "%1: no card in this place").arg(name));
        return;
    }
    presses_.press(name, presser, [this, card, name, tagged, presser] {
        if (card.language != state_.language()) {
            note_.say(translate("console", "%1: other cards were loaded, not fired").arg(name));
            return;
        }
        state_.variables.SetVar(u"@CARD_BUTTON_INDEX", card.place.index);
        run(card.script, presser, tagged, card.place);
    });
}

void CardConsole::pressScript(const QString& name, const QString& script) {
    fireScript(name, script, kButton);
}

void CardConsole::pressFound(const FindEntry& entry, bool asks) {
    const Presser presser{u"find"_s};
    if (entry.kind == FindEntry::Kind::Card) {
        fire({entry.place, entry.caption, entry.target, entry.language}, !asks && state_.console.playerSelected,
             presser);
        return;
    }
    presses_.press(entry.caption, presser,
                   [this, script = entry.target, presser] { run(script, presser, false, placeOf(script)); });
}

void CardConsole::fireScript(const QString& name, const QString& script, const Presser& presser) {
    presses_.press(told(name, presser), presser, [this, script, presser] { run(script, presser); });
}

void CardConsole::run(const QString& script, const Presser& presser, bool tagged, std::optional<CardPlace> place) {
    if (!presser.from.isEmpty()) {
        note_.say(translate("console", "%1: fired from %2")
                      .arg(captionOf(state_, CardEngine::scriptName(script)), presser.from),
                  Control::Role::Plain);
    }
    if (script != state_.cards.clearCard) {
        recent_.removeAll(script);
        recent_.prepend(script);
        recent_.resize(std::min<qsizetype>(recent_.size(), kRecent));
    }
    Asker asker{Asker::Kind::Operator, script, place};
    asker.presser = presser;
    engine_.SHOW_TVCARD(script, tagged, false, asker);
    if (engine_.program().closing.hasBegun()) return;
    showSwitches();
    Q_EMIT cardsChanged();
}

void CardConsole::selectBox(int selector) {
    down_.reset();  // a press that was let go beside its button
    state_.currentSet = selector + 1;
    for (int i = 0; i < kSelectors; ++i) form_.at(controls.GradientButtonS, i).setChecked(i == selector);
    showCurrentSet(state_, form_);
    Q_EMIT cardsChanged();
}

void CardConsole::CLEAR_TV(const Presser& presser) {
    Q_EMIT clearing();
    run(state_.cards.clearCard, presser);
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

void CardConsole::pressClear(const Presser& presser) {
    note_.clear();
    presses_.clear([this, presser] { CLEAR_TV(presser); });
}

void CardConsole::functionKey(int number, const Presser& presser) {
    if (number < 1 || number > kFiringFunctionKeys) return;
    const QString script = state_.cards.functionKey(number).script;
    if (script.isEmpty()) return;
    presses_.press(told(u'F' + QString::number(number), presser), presser,
                   [this, script, presser] { run(script, presser, false, placeOf(script)); });
}

// The button of the first card that runs this script, in the current set before the others.
std::optional<CardPlace> CardConsole::placeOf(const QString& script) const {
    const auto placeIn = [&](int set) -> std::optional<CardPlace> {
        for (int index = 0; index < kCardButtons; ++index) {
            const QString& other = state_.cards.entry(set, index + 1).script;
            if (CardEngine::scriptName(other) == CardEngine::scriptName(script)) return CardPlace{set, index};
        }
        return std::nullopt;
    };
    std::optional<CardPlace> place = placeIn(state_.currentSet);
    for (int set = 0; !place && set < CardTable::kSets; ++set) place = placeIn(set);
    return place;
}

void CardConsole::showTab(int tab) {
    for (int i = 0; i < kTabs; ++i) {
        form_.at(*kTabPanels[i]).setVisible(i == tab);
        form_.at(controls.cmdTAB, i).setChecked(i == tab);
    }
}

std::optional<int> CardConsole::tabOf(QStringView panel) {
    for (int tab = 0; tab < kTabs; ++tab) {
        if (kTabPanels[tab]->name == panel) return tab;
    }
    return std::nullopt;
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
    pressScript(translate("caption", "Auto card"), state_.variables.GetVar(u"@AUTOCARD").text());
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
    return state_.console.lastFired == CardPlace{state_.currentSet, index};
}

const CardEntry& CardConsole::card(int index) const {
    return state_.cards.entry(state_.currentSet, index + 1);
}

QString CardConsole::troubleOf(const CardEntry& card) const {
    const auto& troubles = state_.console.troubles;
    const auto found = troubles.find(CardEngine::scriptName(card.script));
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
