#include "base/number.h"
#include "engine/card_run.h"
#include "engine/condition.h"
#include "engine/on_air.h"

using namespace Qt::StringLiterals;

namespace zelvor::commands {

namespace {

// Handled while the script is read; nothing is left to do when the line is reached.
void readEarlier(CardRun&, const Arguments&) {}

void ENDCARD(CardRun& run, const Arguments&) {
    run.endCard();
}

// Rounds of a loop that may raise @RECORDCOUNT itself, and would then never end.
constexpr double kMostRounds = 1'000'000;

void FOREACHREC(CardRun& run, const Arguments& args) {
    const Value* count = run.variables().find(u"@RECORDCOUNT");
    const double records = count != nullptr ? count->leadingNumber() : 0;
    run.loop = {run.lineNo() + 1, u'@' + args.text(), 1, std::max(records, kMostRounds)};
    run.variables().SetVar(run.loop.variable, 1);
}

void ROF(CardRun& run, const Arguments&) {
    run.loop.counter += 1;
    const bool begun = run.loop.start != 0;
    if (begun) run.variables().SetVar(run.loop.variable, static_cast<qint64>(run.loop.counter));
    if (run.loop.counter > run.variables().GetVar(u"@RECORDCOUNT").leadingNumber()) return;
    if (!begun) throw RunTimeError(ErrorNumber::SubscriptOutOfRange, u"ROF without FOREACHREC"_s);
    if (run.loop.counter > run.loop.mostRounds) throw RunTimeError(ErrorNumber::OutOfStackSpace, u"FOREACHREC"_s);
    run.letClearIn();
    run.jumpTo(run.loop.start);
}

// An operand that begins with "EVAL" stands for the value of the script expression behind it.
QString operand(CardRun& run, QStringView text) {
    if (!text.startsWith(u"EVAL")) return text.toString();
    return run.engine().calculator().evaluate(text.mid(4)).text();
}

void IF(CardRun& run, const Arguments& args) {
    const Pieces pieces = args.pieces();
    if (conditionHolds(operand(run, pieces[0]), pieces[1], operand(run, pieces[2]))) return;
    const QStringView label = pieces.count() > 3 ? pieces[3] : QStringView();
    const int blockEnd = run.script().findBlockEnd(label, run.lineNo());
    if (blockEnd == 0) {
        // The search has run off the end of the script.
        throw RunTimeError(ErrorNumber::SubscriptOutOfRange, u"FI~"_s + label);
    }
    run.jumpTo(blockEnd + 1);
}

void DELAY(CardRun& run, const Arguments& args) {
    const qint64 milliseconds = static_cast<qint64>(wholeNumber32(args.text())) * 1000;
    Clock& clock = run.ports().clock;
    const qint64 start = clock.steadyMilliseconds();
    do {
        clock.waitBriefly();
        run.goOn();
    } while (clock.steadyMilliseconds() - start <= milliseconds);
}

void BREAK(CardRun& run, const Arguments& args) {
    const bool goOn = run.ports().operatorDesk.yesNo(run.asker(), u"Break"_s, args.text());
    run.goOn();
    if (!goOn) {
        run.abandon();
        return;
    }
    SHOW_RTX(run.engine().program().folder);
    if (!onAirLocked(run.form())) SHOW_ONAIR(run.state(), run.form(), run.cardFile());
}

void LOOPPAGE(CardRun& run, const Arguments& args) {
    constexpr qint16 kYes = 6;
    constexpr qint16 kNo = 7;
    const auto answer = [&run](qint16 value) { run.variables().SetVar(u"@LOOP_ANSWER", value); };
    run.ports().clock.turnEvents(1);
    answer(kNo);
    if (run.ports().operatorDesk.yesNo(run.asker(), u"Loop Run"_s, args.text())) answer(kYes);
    run.ports().clock.turnEvents(1);
    run.goOn();
}

using Argument = Command::Argument;
using Role = Command::Role;

constexpr std::array kFlowCommands{
    Command{u"INCLUDE", readEarlier, Argument::None, u"file", u"puts the lines of another script file here",
            roles(Role::Include)},
    Command{u"NORTXOUT", readEarlier, Argument::None, u"", u"no RTX output files at the end"},
    Command{u"FUNCTIONCARD", readEarlier, Argument::None, u"", u"leaves the on-air line and the last card untouched"},
    Command{u"ENDCARD", ENDCARD, Argument::None, u"", u"ends the script"},
    Command{u"FOREACHREC", FOREACHREC, Argument::Expanded, u"name", u"begins the record loop; @name counts from 1",
            roles(Role::LoopName)},
    Command{u"ROF", ROF, Argument::None, u"", u"ends the record loop", roles(Role::LoopEnd)},
    Command{u"IF", IF, Argument::Expanded, u"left;operator;right;[label]", u"skips to FI~label when false",
            roles(Role::Operand, Role::Operation, Role::Operand, Role::BlockLabel)},
    Command{u"FI", readEarlier, Argument::None, u"label", u"ends the block of that label", roles(Role::BlockEnd)},
    Command{u"DELAY", DELAY, Argument::Expanded, u"seconds", u"waits; the console goes on meanwhile",
            roles(Role::WholeNumber, Role::Waits)},
    Command{u"BREAK", BREAK, Argument::Expanded, u"message", u"asks whether to go on"},
    Command{u"LOOPPAGE", LOOPPAGE, Argument::Expanded, u"question", u"asks Yes or No; @LOOP_ANSWER becomes 6 or 7"},
};

}  // namespace

std::span<const Command> flow() {
    return kFlowCommands;
}

}  // namespace zelvor::commands
