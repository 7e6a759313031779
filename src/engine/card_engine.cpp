#include "engine/card_engine.h"

#include <QFileInfo>
#include <algorithm>
#include <stdexcept>

#include "engine/card_run.h"
#include "engine/team_labels.h"

using namespace Qt::StringLiterals;

namespace zelvor {

CardEngine::CardEngine(ShowState& state, FormModel& form, Program& program, const Ports& ports)
    : state_(state), form_(form), program_(program), ports_(ports), calculator_(ports.clock) {}

QString CardEngine::scriptName(const QString& cardFile) {
    QString name = cardFile;
    // Meant: only these two spellings; ".Qrd" stays.
    return name.replace(u".qrd"_s, u".csp"_s).replace(u".QRD"_s, u".csp"_s);
}

CardEngine::Outcome CardEngine::SHOW_TVCARD(const QString& cardFile, bool autoRun, bool keepStates,
                                            const Asker& asker) {
    if (program_.closing.hasBegun()) return Outcome::Closed;
    const QString name = scriptName(cardFile);
    if (asker.run != 0) return runScript(name, autoRun, keepStates, asker);
    Asker numbered = asker;
    numbered.run = ++lastRun_;
    Q_EMIT runs_.begun(numbered);
    const Outcome outcome = runScript(name, autoRun, keepStates, numbered);
    Q_EMIT runs_.ended(numbered, outcome);
    return outcome;
}

CardEngine::Outcome CardEngine::runScript(const QString& name, bool autoRun, bool keepStates, const Asker& asker) {
    const Closing& closing = program_.closing;
    const QString language = state_.language();
    const QString shownPath = program_.folder.packFile(language, name);
    std::shared_ptr<const CardScript> script = scripts_.current(shownPath);
    const QString path = script ? QString() : program_.folder.resolve(shownPath);
    if (!script && !QFileInfo(path).isFile()) {
        ports_.operatorDesk.message(asker, {}, u"Card Script file:\r\n"_s + shownPath + u"\r\n not exist."_s,
                                    Operator::Severity::Warning);
        return Outcome::NoScript;
    }

    const bool isInside = !asker.at.card.isEmpty();
    ErrorPlace place{u"mGLOBAL.SHOW_TVCARD"_s, 0, asker};
    place.asker.at = {name};
    Outcome outcome = Outcome::Ran;
    running_.push_back({&place.asker});
    const bool ran = program_.trap.run(place, ErrorTrap::Tell::Operator, [&] {
        if (program_.databaseWait.isOn()) throw std::logic_error("a card began while the database is waited for");
        if (running_.size() > kDeepestRun) throw RunTimeError(ErrorNumber::OutOfStackSpace, name);
        if (!script) {
            script =
                std::make_shared<CardScript>(name, path, language, program_.folder, program_.files, place.asker.at);
            scripts_.keep(shownPath, script);
        }
        if (!isInside) place.asker.functionCard = script->functionCard();
        state_.ask.ASK_RESULT = u"0"_s;
        state_.switches.PreviewDisabled = false;
        try {
            CardRun run(*this, script, name, autoRun, keepStates, place);
            run.execute();
            if (!run.hasData()) outcome = Outcome::NoData;
        } catch (const ProgramClosing&) {
            outcome = Outcome::Closed;
        } catch (const RunCleared&) {
            outcome = Outcome::Cleared;
        } catch (const RunTimeError&) {
            if (!closing.hasBegun()) throw;
            outcome = Outcome::Closed;  // what failed was already told, with the program's end
        }
    });
    running_.pop_back();
    if (name.compare(kStartCard, Qt::CaseInsensitive) == 0 && !closing.hasBegun()) showTeams(state_, form_);
    return ran ? outcome : Outcome::Failed;
}

void CardEngine::sendLine(LinkId link, const QString& line, const Asker& asker) {
    const std::size_t run = running_.size() - 1;
    running_[run].sends = true;
    ports_.graphics.sendLine(link, line, asker);
    running_[run].sends = false;
}

qint64 CardEngine::sendingByItself() const {
    if (running_.empty() || !running_.back().sends || running_.back().asker->isAttended()) return 0;
    return running_.back().asker->run;
}

bool CardEngine::pausesInsideAPause() const {
    return !running_.empty() && running_.back().sends && running_.back().asker->isAttended() && sending() > 1;
}

qsizetype CardEngine::sending() const {
    return std::ranges::count_if(running_, &Running::sends);
}

bool CardEngine::isRunning(qint64 run) const {
    return std::ranges::any_of(running_, [run](const Running& each) { return each.asker->run == run; });
}

}  // namespace zelvor
