#pragma once

#include <functional>

#include "console_rules/card_console.h"

namespace zelvor {

// The load sequence, from an empty form to the idle console, and the close sequence. The order is required: defaults
// stand before the start-up card, which may read them, and the saved selections win over both.
class StartUp {
 public:
    // What the sequence calls in other rooms. One that is empty is left out.
    struct Steps {
        std::function<void()> bindFeed;  // not in the preview instance
        std::function<void()> LOAD_PACKS;
        std::function<void()> showWindow;
        std::function<void()> CONNECTDATABASE;
        std::function<void()> LOAD_CARDS;
        std::function<void()> LOAD_ASK;
        std::function<void()> LoadSelections;
        std::function<void()> showGeneral;
        std::function<void()> startTimedCards;
    };

    StartUp(CardEngine& engine, CardConsole& console, Steps steps);

    // The window's title: the program's name and version, "Preview " before it in the preview instance.
    [[nodiscard]] QString caption() const;

    // Runs the sequence. A step that fails is reported and the next one runs; closing the program ends it.
    void run();

 private:
    void layOut();
    void fillEffects();
    void tellOfNoModules();
    bool step(const QString& name, const std::function<void()>& body);

    CardEngine& engine_;
    CardConsole& console_;
    Steps steps_;
    ShowState& state_;
    FormModel& form_;
};

}  // namespace zelvor
