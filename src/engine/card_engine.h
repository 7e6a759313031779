#pragma once

#include <QString>
#include <vector>

#include "base/program.h"
#include "engine/calculator.h"
#include "engine/card_runs.h"
#include "engine/card_script.h"
#include "engine/ports.h"
#include "engine/show_state.h"
#include "form/form_model.h"

namespace zelvor {

// Runs card scripts. Everything that fires a card calls SHOW_TVCARD.
class CardEngine {
 public:
    // Runs inside runs (a card that fires proposals, a timer in a card's pause) beyond this end with 28.
    static constexpr std::size_t kDeepestRun = 50;

    // The card of the start-up, which the operator can run again. The team labels follow it each time it has run.
    inline static const QString kStartCard = QStringLiteral("GetGame.csp");

    CardEngine(ShowState& state, FormModel& form, Program& program, const Ports& ports);

    using Outcome = RunOutcome;

    // Runs the card's script to its end. cardFile: as the card table gives it, relative to the pack's folder.
    // autoRun: ask fields take their automatic answers. keepStates: ON, OFF and OFFALL are skipped. A missing script
    // is one message; a run-time error ends the run with one message. asker: to whom boxes and messages belong.
    Outcome SHOW_TVCARD(const QString& cardFile, bool autoRun, bool keepStates, const Asker& asker);

    // Puts a line of the newest run on a link; to that run belongs the pause before PLAY.
    void sendLine(LinkId link, const QString& line, const Asker& asker);
    // The number of the newest run while it sends a line and nobody at the desk has asked for it; 0 otherwise.
    [[nodiscard]] qint64 sendingByItself() const;
    // Whether the newest run is in the pause before PLAY of a card of his, itself inside such a pause.
    [[nodiscard]] bool pausesInsideAPause() const;
    // Whether any run sends a line.
    [[nodiscard]] bool isSending() const { return sending() > 0; }
    [[nodiscard]] bool isRunning(qint64 run) const;

    [[nodiscard]] ShowState& state() { return state_; }
    [[nodiscard]] FormModel& form() { return form_; }
    [[nodiscard]] Program& program() const { return program_; }
    [[nodiscard]] const Ports& ports() const { return ports_; }
    Calculator& calculator() { return calculator_; }
    [[nodiscard]] const CardRuns& runs() const { return runs_; }

    // Names the pack's script of a card: ".qrd" and ".QRD" are run as ".csp", any other spelling stays.
    static QString scriptName(const QString& cardFile);

 private:
    [[nodiscard]] qsizetype sending() const;
    Outcome runScript(const QString& name, bool autoRun, bool keepStates, const Asker& asker);

    ShowState& state_;
    FormModel& form_;
    Program& program_;
    Ports ports_;
    Calculator calculator_;
    CardScriptCache scripts_;
    struct Running {
        const Asker* asker;
        bool sends = false;
    };
    std::vector<Running> running_;  // each inside the one before it
    CardRuns runs_;
    qint64 lastRun_ = 0;
};

}  // namespace zelvor
