#include "app_run/run_command.h"

#include <QCoreApplication>
#include <QDir>

#include "app_run/card_files.h"
#include "app_run/run_graphics.h"
#include "app_run/run_options.h"
#include "app_run/terminal_ports.h"
#include "ask/ask_fields.h"
#include "ask/scripted_ask.h"
#include "data/connections.h"
#include "engine/card_engine.h"
#include "engine/defaults.h"
#include "engine/packs.h"
#include "engine/system_clock.h"
#include "general_rules/general_variables.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

// The objects of one run, made for it and gone with it.
class TerminalRun {
 public:
    TerminalRun(const RunOptions& options, QTextStream& out, QTextStream& err)
        : options_(options), out_(out), err_(err), operator_(err, options.yes), desktop_(out) {
        program_.trap.setReporter([this](const ErrorPlace& place, const QString& message) {
            // Who has just been told that the program ends needs no second message.
            if (program_.closing.hasBegun()) return;
            operator_.message(place.asker, errorTitle(place), message, Operator::Severity::Critical);
        });
        program_.trap.setWarned([this](const QString& text) {
            err_ << "zelvor run: warning: " << text << '\n';
            err_.flush();
        });
        state_.preview = options.preview;
    }

    RunStatus run() {
        writeAllDefaults(state_, form_, program_.folder);
        if (!choosePack()) return RunStatus::NoScript;
        if (packHas(u"CARDS.TXT")) packs_.LOAD_CARDS();
        if (packHas(u"ASKFIELDS.TXT")) LOAD_ASK(state_, program_);
        GeneralVariables general(state_, program_, operator_);
        general.load();
        general.apply();
        for (const QStringView name : {u"@MAINCONNECTS", u"@REMOTECONNECTS"}) state_.variables.SetVar(name, 1);
        if (!graphics_.connectNamed(clock_)) return RunStatus::NotReached;

        QObject::connect(&form_, &FormModel::changed, &form_, [this](Control* control, Control::Property property) {
            printFormChange(out_, *control, property);
        });
        if (options_.start) {
            engine_.SHOW_TVCARD(CardEngine::kStartCard, false, false, {Asker::Kind::StartUp, CardEngine::kStartCard});
        }
        for (const auto& [name, value] : options_.variables) state_.variables.SetVar(name, value);
        // Looked at before the run: what changes while it runs counts.
        CardFiles files(program_, state_.language(), options_.card);
        CardEngine::Outcome outcome = runOnce();
        while (options_.watch && files.waitForChange(clock_)) {
            out_ << "again > " << options_.card << '\n';
            out_.flush();
            askDialog_.answerWith(options_.answers);
            outcome = runOnce();
        }
        if (options_.printVariables) printVariables();
        if (database_.connectionState() == Connections::State::Failed) return RunStatus::NotReached;
        switch (outcome) {
            case CardEngine::Outcome::Ran:
            case CardEngine::Outcome::NoData:
                if (database_.queryFailed()) return RunStatus::Failed;
                return graphics_.allTaken() ? RunStatus::Ran : RunStatus::NotReached;
            case CardEngine::Outcome::Cleared:
            case CardEngine::Outcome::Closed:  // nothing but a database without a connection ends the program here
                return RunStatus::NotReached;
            case CardEngine::Outcome::NoScript:
                return RunStatus::NoScript;
            case CardEngine::Outcome::Failed:
                return RunStatus::Failed;
        }
        Q_UNREACHABLE();
    }

 private:
    CardEngine::Outcome runOnce() {
        const CardEngine::Outcome outcome = engine_.SHOW_TVCARD(options_.card, options_.autoRun, options_.keepStates,
                                                                {Asker::Kind::Operator, options_.card});
        graphics_.finishSending(clock_);
        return outcome;
    }

    [[nodiscard]] bool packHas(QStringView file) const {
        return program_.folder.exists(program_.folder.packFile(state_.language(), file));
    }

    bool choosePack() {
        QString language = options_.language;
        if (language.isEmpty()) {
            program_.trap.run({u"mGLOBAL.LOAD_PACKS"_s}, ErrorTrap::Tell::Operator,
                              [&] { language = packs_.firstPack(); });
        }
        if (language.isEmpty()) {
            err_ << "zelvor run: no pack to run the card from; name one with --language\n";
            err_.flush();
            return false;
        }
        state_.variables.SetVar(u"@LANGUAGE", language);
        return true;
    }

    void printVariables() {
        state_.variables.forEach([this](const QString& name, const Value& value) {
            out_ << "var > " << name << " = " << inOneLine(value.text()) << '\n';
        });
        out_.flush();
    }

    const RunOptions& options_;
    QTextStream& out_;
    QTextStream& err_;
    Program program_{
        AppFolder(options_.appFolder), options_.files,
        ErrorTrap(errorLogPath(QCoreApplication::applicationFilePath(), AppFolder(options_.appFolder).path()))};
    ShowState state_;
    FormModel form_;
    SystemClock clock_{program_.closing};
    TerminalOperator operator_;
    TerminalDesktop desktop_;
    // What was cancelled is waited for: ending in the middle of it could leave it done.
    Connections database_{state_,
                          operator_,
                          program_,
                          clock_,
                          {.number = options_.connection,
                           .seconds = options_.querySeconds,
                           .untilCancelled = std::chrono::seconds(options_.querySeconds)}};
    ScriptedAsk askDialog_{state_, database_, program_.trap, options_.answers};
    GraphicsLinks links_{form_, clock_, program_};
    RunGraphics graphics_{links_, options_, out_, err_};
    Packs packs_{state_, form_, program_, operator_};
    CardEngine engine_{state_, form_, program_,
                       Ports{operator_, askDialog_, graphics_, graphics_, database_, desktop_, clock_}};
};

}  // namespace

RunStatus runCard(const QStringList& arguments, QTextStream& out, QTextStream& err) {
    const RunOptions options = readRunOptions(arguments);
    if (options.help) {
        out << runHelp();
        return RunStatus::Ran;
    }
    QDir::setCurrent(options.appFolder);
    return TerminalRun(options, out, err).run();
}

}  // namespace zelvor
