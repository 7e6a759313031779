#pragma once

#include "console/panels/panel_frame.h"

namespace zelvor {

// "Effect": the four effect speeds.
class EffectPanel : public PanelFrame {
    Q_OBJECT

 public:
    explicit EffectPanel(const Mirrors& mirrors);
};

// "Clocks": the local clock or countdown, the extra time cards show, the test sender.
class ClocksPanel : public PanelFrame {
    Q_OBJECT

 public:
    explicit ClocksPanel(const Mirrors& mirrors);
};

}  // namespace zelvor
