#pragma once

#include <QObject>
#include <QTimer>

#include "console_rules/form_events.h"
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

    explicit CardConsole(CardEngine& engine);

    // Takes the clicks of all its controls.
    void answer(FormEvents& events);

    // Card button or "L" button `index` (from 0) of the current set. An index outside of the table throws 9.
    void pressCard(int index);
    void pressCardBox(int index);
    // Selector 0 to 4 shows set 1 to 5.
    void selectBox(int selector);
    void CLEAR_TV();
    // F1 to F10 by their numbers; an empty entry fires nothing.
    void functionKey(int number);
    void showTab(int tab);
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
    [[nodiscard]] QString troubleOf(int index) const;

 Q_SIGNALS:
    // A card table was loaded and is shown.
    void loaded();
    // Something that a card button shows besides its control's properties may have changed.
    void cardsChanged();
    // The operator clears the screen; before the clear card runs.
    void clearing();

 private:
    void fire(int index, bool tagged);
    void run(const QString& script, bool tagged = false);
    void showSwitches();

    static constexpr int kSwitchInterval = 500;  // milliseconds

    CardEngine& engine_;
    ShowState& state_;
    FormModel& form_;
    QTimer switchTimer_{this};
    QString shownLanguage_;
};

}  // namespace zelvor
