#pragma once

#include <QString>
#include <memory>
#include <optional>

#include "base/error_trap.h"
#include "engine/card_engine.h"
#include "engine/card_script.h"
#include "engine/output_files.h"

namespace zelvor {

// The state of one run of a card and nothing else. Nested runs are simply two of them.
class CardRun {
 public:
    // place: told the line reached when the run ends by an error or somebody asks for it.
    CardRun(CardEngine& engine, std::shared_ptr<const CardScript> script, QString cardFile, bool autoRun,
            bool keepStates, ErrorPlace& place);

    // Runs every line and finishes. Throws RunTimeError for an error of the script.
    void execute();

    // For commands.
    CardEngine& engine() { return engine_; }
    ShowState& state() { return engine_.state(); }
    VariableStore& variables() { return engine_.state().variables; }
    FormModel& form() { return engine_.form(); }
    const Ports& ports() { return engine_.ports(); }
    OutputFiles& files() { return files_; }
    [[nodiscard]] const CardScript& script() const { return *script_; }
    [[nodiscard]] const QString& cardFile() const { return cardFile_; }
    // Who asked for this run, also when another card of his has fired it.
    [[nodiscard]] const Asker& asker() { return place().asker; }
    [[nodiscard]] bool autoRun() const { return autoRun_; }
    [[nodiscard]] bool keepStates() const { return keepStates_; }
    [[nodiscard]] int lineNo() const { return lineNo_; }
    // The text with its placeholders replaced.
    QString expand(const QString& text) { return EXPAND_VARS(text, variables(), state().QUERY_RESULT); }

    // Tells the operator of something that went on, but not as it should: in the error log and the history list.
    void warn(const QString& text);

    // Warns of what breaks the template data and marks the card with it; a run whose template data are sound takes the
    // mark away.
    void noteTemplateFaults(const QStringList& faults);

    // Goes on with that line. A number past the last ends the script.
    void jumpTo(int line) { lineNo_ = line - 1; }
    // Ends the script; the run still finishes.
    void endCard() { lineNo_ = script_->lineCount(); }
    // Ends the script as for a query without data: the run finishes with "NO DATA".
    void endWithoutData();
    [[nodiscard]] bool hasData() const { return hasData_; }
    // Ends the script and leaves the on-air display and the last card untouched.
    void abandon();
    // Ends the run at once when the program is closing, CLEAR was pressed since it began, or it has made room for a
    // press; called after everything that waits.
    void goOn() const;
    // Called for each round of a loop: one that goes on for seconds does not hold up CLEAR, the links and painting. No
    // card begins meanwhile. Ends the run as goOn() does.
    void letClearIn();
    // Whether the button that was pressed is this card's, and still is.
    [[nodiscard]] bool isOnItsButton();
    // Shows the card as on air, or that it had no data, and remembers it as the last one.
    void finish();

    struct RecordLoop {
        int start = 0;
        QString variable;
        double counter = 0;
        double mostRounds = 0;
    };
    RecordLoop loop;  // the one active record loop

 private:
    const ErrorPlace& place();
    void executeLine(const ScriptLine& line);
    const ScriptLine& chooseBranch(const LineCondition& condition);

    CardEngine& engine_;
    std::shared_ptr<const CardScript> script_;
    QString cardFile_;
    bool autoRun_;
    bool keepStates_;
    ErrorPlace& place_;
    int clearings_;                // before this run
    int lineNo_ = 0;               // a command may move it
    int reached_ = 0;              // the line that runs or has run last; 0 before the first
    int rounds_ = 0;               // of loops, since the time was looked at
    std::optional<qint64> alone_;  // since when nothing else has had its turn, in milliseconds
    bool hasData_ = true;
    bool abandoned_ = false;
    QStringList templateFaults_;
    QString expanded_;  // the current line's argument
    OutputFiles files_;
};

// Thrown by CardRun::goOn() and caught by CardEngine: the run ends because the program does, by CLEAR, or for a press.
struct ProgramClosing {};
struct RunCleared {};

}  // namespace zelvor
