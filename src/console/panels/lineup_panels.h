#pragma once

#include "console/panels/panel_frame.h"

namespace zelvor {

// "Start 5": the starting fives by player numbers, and the buttons of the cards that go with them.
class StartFivePanel : public PanelFrame {
    Q_OBJECT

 public:
    explicit StartFivePanel(const Mirrors& mirrors);
};

// "Start 11": the same for elevens. No tab shows it: meant.
class StartElevenPanel : public PanelFrame {
    Q_OBJECT

 public:
    explicit StartElevenPanel(const Mirrors& mirrors);
};

}  // namespace zelvor
