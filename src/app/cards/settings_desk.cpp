#include "app_cards/settings_desk.h"

#include <QCursor>

using namespace Qt::StringLiterals;

namespace zelvor {

SettingsDesk::SettingsDesk(CardEngine& engine, Packs& packs, CardConsole& cards, Boxes& boxes, ErrorTrap& trap,
                           QWidget& window)
    : cards_(cards),
      window_(window),
      general_(engine.state(), engine.folder(), engine.files(), trap, boxes),
      generalForm_(general_, boxes, pickers_, &window),
      variablesBox_(&window),
      commands_(engine, packs, general_, forms_, trap),
      selections_(engine, trap),
      menu_(engine.form(), &window) {
    forms_.add(generalForm_);
    forms_.add(variablesBox_);
    connect(&commands_, &OperatorCommands::cardsLoaded, &cards_, &CardConsole::showLoaded);
    connect(&menu_, &MainMenu::chosen, this, &SettingsDesk::choose);
}

void SettingsDesk::answer(FormEvents& events, SystemDesktop& desktop) {
    events.onClick(u"cmdSCREENMODE"_s, [this](int button) { commands_.cmdSCREENMODE(button); });
    events.onClick(u"cmdMenu"_s, [this](int) { menu_.popup(QCursor::pos()); });
    desktop.addForm(generalForm_.objectName(), [this] { commands_.mnGeneralVars(); });
}

void SettingsDesk::choose(const QString& item) {
    if (item == u"mnReloadVar") commands_.mnReloadVar();
    if (item == u"mnDisplayVars") variablesBox_.display(commands_.mnDisplayVars());
    if (item == u"mnGeneralVars") commands_.mnGeneralVars();
    if (item == u"mnSet169") commands_.mnSet169();
    if (item == u"mnSet43") commands_.mnSet43();
}

void SettingsDesk::showGeneral() {
    commands_.showGeneral();
    window_.activateWindow();
}

void SettingsDesk::close() {
    pickers_.cancel();
    forms_.closeAll();
}

}  // namespace zelvor
