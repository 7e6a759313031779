#pragma once

#include "console/panels/panel_frame.h"

namespace zelvor {

// "Scores": the score in use, the automatic and the manual one, the period, the game time with its extra time.
class ScoresPanel : public PanelFrame {
    Q_OBJECT

 public:
    explicit ScoresPanel(const Mirrors& mirrors);

 private:
    static void addSide(const Mirrors& mirrors, QGridLayout* grid, int column, const TeamControls& team,
                        const QString& nobody, int firstStep);
    static QLayout* manualScore(const Mirrors& mirrors, const ControlRow& box, int firstStep);
    static QLayout* times(const Mirrors& mirrors);
};

}  // namespace zelvor
