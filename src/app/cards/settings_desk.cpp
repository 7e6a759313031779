#include "app_cards/settings_desk.h"

#include "base/translate.h"

using namespace Qt::StringLiterals;

namespace zelvor {

SettingsDesk::SettingsDesk(CardEngine& engine, Packs& packs, CardConsole& cards, Boxes& boxes, MainWindow& window)
    : cards_(cards),
      window_(window),
      form_(engine.form()),
      general_(engine.state(), engine.program(), boxes),
      pickers_(engine.program().closing),
      generalForm_(general_, boxes, pickers_),
      forms_(window, engine.program().closing),
      commands_(engine, packs, general_, forms_),
      selections_(engine),
      menu_(engine.form(), &window),
      look_(engine.program(), window) {
    forms_.add(generalForm_);
    forms_.add(variablesBox_);
    for (const QWidget* form : std::initializer_list<const QWidget*>{&generalForm_, &variablesBox_})
        window.takeFunctionKeysOf(*form);
    connect(&commands_, &OperatorCommands::cardsLoaded, &cards_, &CardConsole::showLoaded);
    connect(&commands_, &OperatorCommands::reloadWanted, this, [this] { choose(u"mnReloadVar"_s); });
    connect(&menu_, &MainMenu::chosen, this, &SettingsDesk::choose);
}

void SettingsDesk::answer(FormEvents& events, SystemDesktop& desktop) {
    events.onClick(controls.cmdSCREENMODE, [this](int button) { commands_.cmdSCREENMODE(button); });
    events.onClick(controls.cmdMenu, [this](int) { menu_.popup(window_.below(controls.cmdMenu)); });
    for (const ControlRow* list : {&controls.cmbFADE, &controls.cbQt, &controls.cmbLANG})
        events.onClick(*list, [this, list](int index) { commands_.chooseAgain(form_.at(*list, index)); });
    desktop.addForm(generalForm_.objectName(), [this](const Asker& asker) { commands_.mnGeneralVars(asker); });
}

void SettingsDesk::choose(const QString& item) {
    if (item == u"mnReloadVar") cards_.presses().press(u"Reload db vars"_s, {}, [this] { commands_.mnReloadVar(); });
    if (item == u"mnDisplayVars") {
        showVariable({});
    }
    if (item == u"mnGeneralVars") commands_.mnGeneralVars({});
    if (item == controls.mnSet169.name) commands_.mnSet169();
    if (item == controls.mnSet43.name) commands_.mnSet43();
    if (const auto theme = MainMenu::themeOf(item)) look_.setTheme(*theme);
}

std::vector<FindEntry> SettingsDesk::commands() const {
    std::vector<FindEntry> found;
    for (const MainMenu::Item& item : menu_.items())
        found.push_back({FindEntry::Kind::Command, item.caption, translate("cards", "main menu"), item.name});
    return found;
}

void SettingsDesk::showVariable(const QString& name) {
    variablesBox_.setText(commands_.mnDisplayVars());
    variablesBox_.search(name);
    forms_.bringToFront(variablesBox_.objectName());
}

void SettingsDesk::showGeneral() {
    commands_.showGeneral();
    window_.activateWindow();
}

}  // namespace zelvor
