#pragma once

#include "app_cards/settings_desk.h"
#include "console/find_box.h"

namespace zelvor {

// Finding put together: what there is to find, and what choosing it does.
class FindDesk : public QObject {
    Q_OBJECT

 public:
    // All must outlive the desk.
    FindDesk(const ShowState& state, const AppFolder& folder, CardConsole& cards, SettingsDesk& settings,
             MainWindow& window);

 private:
    void choose(const FindEntry& entry, bool asks);

    CardConsole& cards_;
    SettingsDesk& settings_;
    FindBox box_;
};

}  // namespace zelvor
