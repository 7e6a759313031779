#include "app_cards/settings_desk.h"

#include "base/translate.h"

using namespace Qt::StringLiterals;

namespace zelvor {

SettingsRules::SettingsRules(CardEngine& engine, Packs& packs, Operator& operatorDesk)
    : general(engine.state(), engine.program(), operatorDesk),
      forms(engine.program().closing),
      commands(engine, packs, general, forms),
      selections(engine) {}

SettingsDesk::SettingsDesk(CardEngine& engine, SettingsRules& rules, CardConsole& cards, Boxes& boxes, LookMemory& look,
                           MainWindow& window)
    : rules_(rules),
      cards_(cards),
      look_(look),
      window_(window),
      form_(engine.form()),
      pickers_(engine.program().closing),
      generalForm_(rules.general, boxes, pickers_),
      menu_(engine.form(), &window) {
    rules.forms.setConsole(window);
    for (QWidget* form : std::initializer_list<QWidget*>{&generalForm_, &variablesBox_}) {
        rules.forms.add(*form);
        window.takeFunctionKeysOf(*form);
    }
    connect(&rules.commands, &OperatorCommands::cardsLoaded, &cards_, &CardConsole::showLoaded);
    connect(&rules.commands, &OperatorCommands::reloadWanted, this, [this] { choose(u"mnReloadVar"_s); });
    connect(&menu_, &MainMenu::chosen, this, &SettingsDesk::choose);
}

void SettingsDesk::answer(FormEvents& events, SystemDesktop& desktop) {
    events.onClick(controls.cmdSCREENMODE, [this](int button) { rules_.commands.cmdSCREENMODE(button); });
    events.onClick(controls.cmdMenu, [this](int) { menu_.popup(window_.below(controls.cmdMenu)); });
    for (const ControlRow* list : {&controls.cmbFADE, &controls.cbQt, &controls.cmbLANG})
        events.onClick(*list, [this, list](int index) { rules_.commands.chooseAgain(form_.at(*list, index)); });
    desktop.addForm(generalForm_.objectName(), [this](const Asker& asker) { rules_.commands.mnGeneralVars(asker); });
}

void SettingsDesk::choose(const QString& item) {
    if (item == u"mnReloadVar")
        cards_.presses().press(u"Reload db vars"_s, {}, [this] { rules_.commands.mnReloadVar(); });
    if (item == u"mnDisplayVars") {
        showVariable({});
    }
    if (item == u"mnGeneralVars") rules_.commands.mnGeneralVars({});
    if (item == controls.mnSet169.name) rules_.commands.mnSet169();
    if (item == controls.mnSet43.name) rules_.commands.mnSet43();
    if (const auto theme = MainMenu::themeOf(item)) {
        window_.setTheme(*theme);
        look_.keepTheme(*theme);
    }
}

std::vector<FindEntry> SettingsDesk::commands() const {
    std::vector<FindEntry> found;
    for (const MainMenu::Item& item : menu_.items())
        found.push_back({FindEntry::Kind::Command, item.caption, translate("cards", "main menu"), item.name});
    return found;
}

void SettingsDesk::showVariable(const QString& name) {
    variablesBox_.setText(rules_.commands.mnDisplayVars());
    variablesBox_.search(name);
    rules_.forms.bringToFront(variablesBox_.objectName());
}

void SettingsDesk::showGeneral() {
    rules_.commands.showGeneral();
    window_.activateWindow();
}

}  // namespace zelvor
