#pragma once

#include "app_cards/look_memory.h"
#include "app_cards/system_desktop.h"
#include "console/boxes.h"
#include "console/main_menu.h"
#include "console/main_window.h"
#include "console_rules/card_console.h"
#include "console_rules/form_events.h"
#include "general_forms/form_list.h"
#include "general_forms/general_form.h"
#include "general_forms/variables_box.h"
#include "general_rules/operator_commands.h"
#include "general_rules/selections.h"

namespace zelvor {

// What answers the operator's settings. The load sequence fills their controls, so it stands before that, without
// windows.
struct SettingsRules {
    SettingsRules(CardEngine& engine, Packs& packs, Operator& operatorDesk);

    GeneralVariables general;
    FormList forms;
    OperatorCommands commands;
    Selections selections;
};

// The operator's settings put together: commands and main menu, saved selections, general variables with their forms.
class SettingsDesk : public QObject {
    Q_OBJECT

 public:
    // All must outlive the desk. window: the console's.
    SettingsDesk(CardEngine& engine, SettingsRules& rules, CardConsole& cards, Boxes& boxes, LookMemory& look,
                 MainWindow& window);

    // Takes the clicks of its controls, and the forms that cards may show.
    void answer(FormEvents& events, SystemDesktop& desktop);

    // Opens the general variables and gives the keys back to the console.
    void showGeneral();

    [[nodiscard]] bool hasUnsaved() { return rules_.general.grid().hasUnsaved(); }

    Pickers& pickers() { return pickers_; }

    // The commands of the main menu, as they are found.
    [[nodiscard]] std::vector<FindEntry> commands() const;
    // An item of the main menu by its name.
    void choose(const QString& item);
    // Shows all variables, narrowed to what holds that name.
    void showVariable(const QString& name);

 private:
    SettingsRules& rules_;
    CardConsole& cards_;
    LookMemory& look_;
    MainWindow& window_;
    FormModel& form_;
    Pickers pickers_;
    GeneralForm generalForm_;
    VariablesBox variablesBox_;
    MainMenu menu_;
};

}  // namespace zelvor
