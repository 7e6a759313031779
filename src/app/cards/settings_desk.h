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

// The operator's settings put together: commands and main menu, saved selections, general variables with their forms.
class SettingsDesk : public QObject {
    Q_OBJECT

 public:
    // All must outlive the desk. window: the console's.
    SettingsDesk(CardEngine& engine, Packs& packs, CardConsole& cards, Boxes& boxes, MainWindow& window);

    // Takes the clicks of its controls, and the forms that cards may show.
    void answer(FormEvents& events, SystemDesktop& desktop);

    void LoadSelections() { selections_.LoadSelections(); }
    // Opens the general variables and gives the keys back to the console.
    void showGeneral();

    [[nodiscard]] bool hasUnsaved() { return general_.grid().hasUnsaved(); }

    Pickers& pickers() { return pickers_; }
    LookMemory& look() { return look_; }

    // The commands of the main menu, as they are found.
    [[nodiscard]] std::vector<FindEntry> commands() const;
    // An item of the main menu by its name.
    void choose(const QString& item);
    // Shows all variables, narrowed to what holds that name.
    void showVariable(const QString& name);

 private:
    CardConsole& cards_;
    MainWindow& window_;
    FormModel& form_;
    GeneralVariables general_;
    Pickers pickers_;
    GeneralForm generalForm_;
    VariablesBox variablesBox_;
    FormList forms_;
    OperatorCommands commands_;
    Selections selections_;
    MainMenu menu_;
    LookMemory look_;
};

}  // namespace zelvor
