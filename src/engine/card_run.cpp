#include "engine/card_run.h"

#include <tuple>

#include "engine/condition.h"
#include "engine/on_air.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

const QString kLineConditionUsage = u"IFL~left;operator;right~\"then line\"~\"else line\""_s;

// How a script writes the command, "SDATA~field;[animation;]value".
QString usageOf(const Command& command) {
    return command.usage.isEmpty() ? command.word.toString() : command.word + u'~' + command.usage;
}

}  // namespace

CardRun::CardRun(CardEngine& engine, std::shared_ptr<const CardScript> script, QString cardFile, bool autoRun,
                 bool keepStates, ErrorPlace& place)
    : engine_(engine),
      script_(std::move(script)),
      cardFile_(std::move(cardFile)),
      autoRun_(autoRun),
      keepStates_(keepStates),
      place_(place),
      clearings_(engine.program().clearing.count()),
      files_(engine.program().files) {}

void CardRun::execute() {
    try {
        for (lineNo_ = 1; lineNo_ <= script_->lineCount(); ++lineNo_) {
            reached_ = lineNo_;
            executeLine(script_->line(lineNo_));
        }
        if (!abandoned_) finish();
    } catch (...) {
        place();
        throw;
    }
}

const ErrorPlace& CardRun::place() {
    if (reached_ > 0) {
        place_.line = reached_;
        place_.asker.at = script_->place(reached_);
    }
    return place_;
}

void CardRun::executeLine(const ScriptLine& firstLine) {
    const ScriptLine* line = &firstLine;
    while (line->condition) line = &chooseBranch(*line->condition);
    if (line->command == nullptr) return;

    const QString* raw = line->hasArgument ? &line->argument.raw() : nullptr;
    const QString* text = raw;
    if (line->hasArgument && line->command->argument == Command::Argument::Expanded && !line->argument.isConstant()) {
        line->argument.expandInto(expanded_, variables(), state().QUERY_RESULT);
        text = &expanded_;
    }
    try {
        line->command->handler(*this, Arguments(raw, text));
    } catch (const MissingPiece&) {
        throw MissingPiece(usageOf(*line->command));
    }
}

const ScriptLine& CardRun::chooseBranch(const LineCondition& condition) {
    condition.comparison.expandInto(expanded_, variables(), state().QUERY_RESULT);
    const Pieces parts(expanded_, u';');
    if (!condition.thenLine || parts.count() < 3) throw MissingPiece(kLineConditionUsage);
    return conditionHolds(parts[0], parts[1], parts[2]) ? *condition.thenLine : *condition.elseLine;
}

void CardRun::warn(const QString& text) {
    if (engine_.program().trap.warn(place(), text)) ports().notes.appendHistory({u" > WARNING "_s, text});
}

void CardRun::noteTemplateFaults(const QStringList& faults) {
    for (const QString& fault : faults) {
        warn(u"MAKEXML: "_s + fault);
        if (!templateFaults_.contains(fault)) templateFaults_ += fault;
    }
    const QString fault = templateFaults_.join(u", "_s);
    for (CardTable::Set& set : state().cards.sets) {
        for (CardEntry& card : set) {
            if (card.fault != fault && CardEngine::scriptName(card.script) == cardFile_) card.fault = fault;
        }
    }
}

void CardRun::endWithoutData() {
    hasData_ = false;
    endCard();
}

void CardRun::abandon() {
    abandoned_ = true;
    endCard();
}

void CardRun::goOn() const {
    const Program& program = engine_.program();
    if (program.closing.hasBegun()) throw ProgramClosing();
    if (program.clearing.count() != clearings_ || program.databaseWait.hasEnded(place_.asker)) throw RunCleared();
}

void CardRun::letClearIn() {
    constexpr int kRoundsBetweenLooks = 16;
    constexpr qint64 kLongestAlone = 5000;  // milliseconds
    if (++rounds_ < kRoundsBetweenLooks) return;
    rounds_ = 0;
    Clock& clock = ports().clock;
    if (alone_ && clock.steadyMilliseconds() - *alone_ <= kLongestAlone) return;
    if (alone_) {
        const DatabaseWait::Scope wait(engine_.program().databaseWait, asker());
        clock.turnEvents(1);
        std::ignore = wait.goesOn();  // ends the run for a press
    }
    goOn();
    alone_ = clock.steadyMilliseconds();
}

// A card may fire another one, and a new card table may give the button to another one meanwhile.
bool CardRun::isOnItsButton() {
    if (!asker().place || CardEngine::scriptName(asker().card) != cardFile_) return false;
    return CardEngine::scriptName(state().cards.entry(asker().place->set, asker().place->index + 1).script) ==
           cardFile_;
}

void CardRun::finish() {
    if (script_->functionCard()) return;
    if (hasData_) {
        SHOW_RTX(engine_.program().folder);
        state().lastCard = cardFile_;
        if (isOnItsButton()) state().console.lastFired = asker().place;
        if (!onAirLocked(form())) SHOW_ONAIR(state(), form(), cardFile_);
    } else {
        state().lastCard.clear();
        showNoData(state(), form(), cardFile_);
    }
}

}  // namespace zelvor
