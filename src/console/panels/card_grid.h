#pragma once

#include <QWidget>
#include <array>

#include "console/mirror.h"
#include "console_rules/card_console.h"

namespace zelvor {

// The 21 cards of the current set in three columns of seven, each with its small "L" button.
class CardGrid : public QWidget {
    Q_OBJECT

 public:
    CardGrid(const Mirrors& mirrors, CardConsole& console);

    // Shows on each card the letter that fires it, together with Alt.
    void showLetters(bool shown);

 private:
    void showFaces();

    const CardConsole& console_;
    FormModel& form_;
    std::array<CardButton*, CardConsole::kCardButtons> buttons_{};
};

}  // namespace zelvor
