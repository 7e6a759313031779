#include "engine/card_engine.h"

#include <QFileInfo>

#include "engine/card_run.h"

using namespace Qt::StringLiterals;

namespace zelvor {

CardEngine::CardEngine(ShowState& state, FormModel& form, const AppFolder& folder, const TextFiles& files,
                       ErrorTrap& trap, const Ports& ports)
    : state_(state),
      form_(form),
      folder_(folder),
      files_(files),
      trap_(trap),
      ports_(ports),
      calculator_(ports.clock) {}

QString CardEngine::scriptName(const QString& cardFile) {
    QString name = cardFile;
    // Meant: only these two spellings; ".Qrd" stays.
    return name.replace(u".qrd"_s, u".csp"_s).replace(u".QRD"_s, u".csp"_s);
}

CardEngine::Outcome CardEngine::SHOW_TVCARD(const QString& cardFile, bool autoRun, bool keepStates) {
    if (state_.closing) return Outcome::Closed;
    const QString name = scriptName(cardFile);
    const QString language = state_.language();
    const QString shownPath = folder_.packFile(language, name);
    std::shared_ptr<const CardScript> script = scripts_.current(shownPath);
    const QString path = script ? QString() : folder_.resolve(shownPath);
    if (!script && !QFileInfo(path).isFile()) {
        ports_.operatorDesk.message({}, u"Card Script file:\r\n"_s + shownPath + u"\r\n not exist."_s,
                                    Operator::Severity::Warning);
        return Outcome::NoScript;
    }

    ErrorPlace place{u"mGLOBAL.SHOW_TVCARD"_s, name, 0};
    Outcome outcome = Outcome::Ran;
    ++depth_;
    const bool ran = trap_.run(place, ErrorTrap::Tell::Operator, [&] {
        if (depth_ > kDeepestRun) throw RunTimeError(ErrorNumber::OutOfStackSpace, name);
        if (!script) {
            script = std::make_shared<CardScript>(path, language, folder_, files_);
            scripts_.keep(shownPath, script);
        }
        state_.ask.ASK_RESULT = u"0"_s;
        state_.switches.PreviewDisabled = false;
        try {
            CardRun(*this, script, name, autoRun, keepStates, place).execute();
        } catch (const ProgramClosing&) {
            outcome = Outcome::Closed;
        } catch (const RunTimeError&) {
            if (!state_.closing) throw;
            outcome = Outcome::Closed;  // what failed was already told, with the program's end
        }
    });
    --depth_;
    return ran ? outcome : Outcome::Failed;
}

}  // namespace zelvor
