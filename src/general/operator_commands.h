#pragma once

#include <QObject>

#include "engine/card_engine.h"
#include "engine/packs.h"
#include "general_rules/general_variables.h"
#include "general_rules/open_forms.h"

namespace zelvor {

// The operator's settings and menu commands: screen mode, language, effect speeds, period, variables. What the
// operator does to a box or list of the form is answered here.
class OperatorCommands : public QObject {
    Q_OBJECT

 public:
    // All must outlive this object.
    OperatorCommands(CardEngine& engine, Packs& packs, GeneralVariables& general, OpenForms& forms);

    // Screen mode by button (0: 4:3, 1: 16:9) and by menu item. Meant: the menu leaves the buttons' colours alone and
    // the buttons the menu's check marks; @SCREEN_MODE holds the last choice of either.
    void cmdSCREENMODE(int button);
    void mnSet169();
    void mnSet43();
    // Runs the card of the start-up again.
    void mnReloadVar();
    // Opens the general variables as they were saved last; an open editor comes to the front as it is.
    // asker: for one who is not attended the keyboard stays where it is.
    void mnGeneralVars(const Asker& asker);
    // The operator has chosen in a list what it shows already: its variable is written again, a language's cards are
    // read again, and the general variables stay as they are.
    void chooseAgain(const Control& list);

    // Loads the current pack's general variables and puts them in force, then opens their editor: the end of the
    // start-up. From now on the operator may change the language; until then its list cannot be used.
    void showGeneral();

    // The text of all variables in the table's order, a line each below a heading.
    [[nodiscard]] QString mnDisplayVars() const;

 Q_SIGNALS:
    // A language change has read its cards; what shows them follows.
    void cardsLoaded();
    // The start card of the language that was chosen is to run in its turn.
    void reloadWanted();

 private:
    void take(const Control& control, const QString& event);
    void takeEffect(const Control& box);
    void takePeriod(const Control& box);
    void changeLanguage(const QString& language);
    // Asks when general variables are not saved.
    bool mayLeaveGeneral();

    CardEngine& engine_;
    Packs& packs_;
    GeneralVariables& general_;
    OpenForms& forms_;
    ShowState& state_;
    FormModel& form_;
    Control& languages_;
    QString language_;        // whose cards are loaded
    bool goingBack_ = false;  // the list returns to that language
};

}  // namespace zelvor
