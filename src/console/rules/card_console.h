#pragma once

#include <QObject>
#include <QTimer>
#include <array>

#include "console_rules/find_list.h"
#include "console_rules/form_events.h"
#include "console_rules/presses.h"
#include "console_rules/status_note.h"
#include "engine/card_engine.h"

namespace zelvor {

// How the operator fires cards: card buttons, card-box selectors, the clear button, function keys, the fixed script
// buttons and the tabs. Works on the form model; knows no widget and nothing of what a card does.
class CardConsole : public QObject {
    Q_OBJECT

 public:
    static constexpr int kCardButtons = CardTable::kCards;
    static constexpr int kSelectors = 5;
    static constexpr int kFiringFunctionKeys = 10;
    static constexpr int kTabs = 6;
    static constexpr int kRecent = 10;

    explicit CardConsole(CardEngine& engine);

    // Takes the clicks of all its controls.
    void answer(FormEvents& events);

    // Card button or "L" button `index` (from 0): fires the card that was last seen on it, the current set's when it
    // was never painted. An empty place is only told. An index outside of the table throws 9.
    void pressCard(int index);
    void pressCardBox(int index);
    // A press from outside of the card that stands there now, in any set. A place outside of the table throws 9.
    void fireCard(CardPlace place, const Presser& presser);
    // Runs a script of the pack. name: of the press, as the operator is told of it.
    void fireScript(const QString& name, const QString& script, const Presser& presser);
    // Card button `index` was painted as it stands now.
    void cardSeen(int index);
    // The mouse goes down on it: the card that was seen is the one its click will fire, whatever is painted meanwhile.
    void cardGoesDown(int index);
    // Selector 0 to 4 shows set 1 to 5.
    void selectBox(int selector);
    void CLEAR_TV(const Presser& presser = {QStringLiteral("clear")});
    // The clear button or key: ends every card that waits, then CLEAR_TV().
    void pressClear(const Presser& presser = {QStringLiteral("clear")});
    // F1 to F10 by their numbers; an empty entry fires nothing.
    void functionKey(int number, const Presser& presser = {QStringLiteral("key")});
    // A card, function key or script that was found: fires it as it was listed. asks: whatever player is tagged.
    void pressFound(const FindEntry& entry, bool asks);
    // The scripts that the operator has fired last, kRecent at most, the last one in front.
    [[nodiscard]] const QStringList& recentlyFired() const { return recent_; }
    void showTab(int tab);
    // The tab, from 0, that shows this panel ("Frame1"); nothing for a panel of no tab.
    [[nodiscard]] static std::optional<int> tabOf(QStringView panel);
    void clearTag();
    // Writes @RETURNKEY from the pick list answered last and runs the script that @AUTOCARD names. Its button
    // (cmdAUTOCARD) is enabled while there is such a name.
    void SHOW_AUTO_CARD();
    // After a card table was loaded: function keys, cover panel, preview mark. Another language has other players: none
    // of them is chosen.
    void showLoaded();

    // True when card button `index` of the current set is the one fired last.
    [[nodiscard]] bool isLastFired(int index) const;
    // "F1" when function key 1 to 10 fires the script of card button `index`; empty when none does.
    [[nodiscard]] QString keyOf(int index) const;
    [[nodiscard]] const CardEntry& card(int index) const;
    // Why a line of card button `index` was refused or not sent, in words; empty when all is well.
    [[nodiscard]] QString troubleOf(int index) const { return troubleOf(card(index)); }
    [[nodiscard]] QString troubleOf(const CardEntry& card) const;

    // What fires cards from elsewhere on the form takes its turn here.
    Presses& presses() { return presses_; }

 Q_SIGNALS:
    // A card table was loaded and is shown.
    void loaded();
    // Something that a card button shows besides its control's properties may have changed.
    void cardsChanged();
    // The operator clears the screen; before the clear card runs.
    void clearing();

 private:
    // A card as it is seen on its button.
    struct SeenCard {
        CardPlace place;
        QString caption;
        QString script;
        QString language;
    };
    [[nodiscard]] SeenCard cardAt(CardPlace place) const;
    void fire(int index, bool tagged);
    void fire(const SeenCard& card, bool tagged, const Presser& presser);
    void pressScript(const QString& name, const QString& script);
    void run(const QString& script, const Presser& presser, bool tagged = false,
             std::optional<CardPlace> place = std::nullopt);
    [[nodiscard]] std::optional<CardPlace> placeOf(const QString& script) const;
    void showSwitches();

    static constexpr int kSwitchInterval = 500;  // milliseconds

    CardEngine& engine_;
    ShowState& state_;
    FormModel& form_;
    Presses presses_;
    StatusNote note_;
    std::array<std::optional<SeenCard>, kCardButtons> seen_;
    std::optional<SeenCard> down_;
    QTimer switchTimer_{this};
    QString shownLanguage_;
    QStringList recent_;
};

}  // namespace zelvor
