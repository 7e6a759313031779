#include "app_cards/find_desk.h"

namespace zelvor {

FindDesk::FindDesk(const ShowState& state, const AppFolder& folder, CardConsole& cards, SettingsDesk& settings,
                   MainWindow& window)
    : cards_(cards), settings_(settings), box_(window) {
    connect(&window, &MainWindow::findKey, this, [this, &state, &folder] {
        box_.showWith(FindList(findable(state, folder, settings_.commands()), cards_.recentlyFired()));
    });
    connect(&box_, &FindBox::chosen, this, &FindDesk::choose);
}

void FindDesk::choose(const FindEntry& entry, bool asks) {
    switch (entry.kind) {
        case FindEntry::Kind::Card:
        case FindEntry::Kind::FunctionKey:
        case FindEntry::Kind::Script:
            return cards_.pressFound(entry, asks);
        case FindEntry::Kind::Command:
            return settings_.choose(entry.target);
        case FindEntry::Kind::Variable:
            return settings_.showVariable(entry.target);
    }
}

}  // namespace zelvor
