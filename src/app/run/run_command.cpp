#include "app_run/run_command.h"

#include <QCoreApplication>
#include <QDir>

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
        trap_.setReporter([this](const ErrorPlace&, const QString& message) {
            // Who has just been told that the program ends needs no second message.
            if (!state_.closing) operator_.message({}, message, Operator::Severity::Critical);
        });
        state_.preview = options.preview;
    }

    RunStatus run() {
        writeAllDefaults(state_, form_, folder_);
        if (!choosePack()) return RunStatus::NoScript;
        if (folder_.exists(folder_.packFile(state_.language(), u"CARDS.TXT"))) packs_.LOAD_CARDS();
        if (folder_.exists(folder_.packFile(state_.language(), u"ASKFIELDS.TXT"))) {
            LOAD_ASK(state_, folder_, options_.files, trap_);
        }
        GeneralVariables general(state_, folder_, options_.files, trap_, operator_);
        general.load();
        general.apply();
        for (const auto& [name, value] : options_.variables) state_.variables.SetVar(name, value);
        if (!graphics_.connectNamed(clock_, err_)) return RunStatus::NotReached;

        QObject::connect(&form_, &FormModel::changed, &form_, [this](Control* control, Control::Property property) {
            printFormChange(out_, *control, property);
        });
        const CardEngine::Outcome outcome = engine_.SHOW_TVCARD(options_.card, options_.autoRun, options_.keepStates);
        graphics_.finishSending(clock_);
        if (options_.printVariables) printVariables();
        if (database_.connectionState() == Connections::State::Failed) return RunStatus::NotReached;
        switch (outcome) {
            case CardEngine::Outcome::Ran:
                return RunStatus::Ran;
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
    bool choosePack() {
        QString language = options_.language;
        if (language.isEmpty()) {
            trap_.run({u"mGLOBAL.LOAD_PACKS"_s}, ErrorTrap::Tell::Operator, [&] { language = packs_.firstPack(); });
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
    AppFolder folder_{options_.appFolder};
    ErrorTrap trap_{errorLogPath(QCoreApplication::applicationFilePath(), folder_.path())};
    ShowState state_;
    FormModel form_;
    SystemClock clock_{state_};
    TerminalOperator operator_;
    TerminalDesktop desktop_;
    Connections database_{state_,
                          operator_,
                          folder_,
                          options_.files,
                          trap_,
                          {{}, options_.connection},
                          [this] { state_.closing = true; }};
    ScriptedAsk askDialog_{state_, database_, trap_, options_.answers};
    GraphicsLinks links_{form_, clock_, trap_, folder_, options_.files};
    RunGraphics graphics_{links_, options_, out_};
    Packs packs_{state_, form_, folder_, options_.files, trap_, operator_};
    CardEngine engine_{state_,         form_, folder_,
                       options_.files, trap_, Ports{operator_, askDialog_, graphics_, database_, desktop_, clock_}};
};

}  // namespace

RunStatus runCard(const QStringList& arguments, QTextStream& out, QTextStream& err) {
    const std::optional<RunOptions> options = parseRunOptions(arguments, err);
    if (!options) return RunStatus::WrongUsage;
    if (options->help) {
        out << runHelp();
        return RunStatus::Ran;
    }
    QDir::setCurrent(options->appFolder);
    return TerminalRun(*options, out, err).run();
}

}  // namespace zelvor
