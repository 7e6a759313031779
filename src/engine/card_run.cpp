#include "engine/card_run.h"

#include "engine/condition.h"
#include "engine/on_air.h"

namespace zelvor {

CardRun::CardRun(CardEngine& engine, std::shared_ptr<const CardScript> script, QString cardFile, bool autoRun,
                 bool keepStates, ErrorPlace& place)
    : engine_(engine),
      script_(std::move(script)),
      cardFile_(std::move(cardFile)),
      autoRun_(autoRun),
      keepStates_(keepStates),
      place_(place),
      files_(engine.program().files) {}

void CardRun::execute() {
    for (lineNo_ = 1; lineNo_ <= script_->lineCount(); ++lineNo_) {
        place_.line = lineNo_;
        executeLine(script_->line(lineNo_));
    }
    if (!abandoned_) finish();
}

void CardRun::executeLine(const ScriptLine& firstLine) {
    const ScriptLine* line = &firstLine;
    while (line->condition) line = &chooseBranch(*line->condition);
    if (line->command == nullptr) return;

    const QString* raw = line->hasArgument ? &line->argument.raw() : nullptr;
    const QString* text = raw;
    if (line->hasArgument && line->command->argument == Command::Argument::Expanded) {
        line->argument.expandInto(expanded_, variables(), state().QUERY_RESULT);
        text = &expanded_;
    }
    line->command->handler(*this, Arguments(raw, text));
}

const ScriptLine& CardRun::chooseBranch(const LineCondition& condition) {
    if (!condition.thenLine) throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
    condition.comparison.expandInto(expanded_, variables(), state().QUERY_RESULT);
    const Pieces parts(expanded_, u';');
    return conditionHolds(parts[0], parts[1], parts[2]) ? *condition.thenLine : *condition.elseLine;
}

void CardRun::endWithoutData() {
    hasData_ = false;
    endCard();
}

void CardRun::abandon() {
    abandoned_ = true;
    endCard();
}

void CardRun::goOnUnlessClosing() {
    if (engine_.program().closing.hasBegun()) throw ProgramClosing();
}

void CardRun::finish() {
    if (script_->functionCard()) return;
    if (hasData_) {
        SHOW_RTX(engine_.program().folder);
        state().lastCard = cardFile_;
        if (!onAirLocked(form())) SHOW_ONAIR(state(), form(), cardFile_);
    } else {
        state().lastCard.clear();
        showNoData(state(), form(), cardFile_);
    }
}

}  // namespace zelvor
