#include "app_check/script_check.h"

#include "app_check/nearest_word.h"
#include "base/number.h"
#include "base/run_time_error.h"
#include "engine/card_table.h"
#include "engine/condition.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

using Role = Command::Role;

const QString kInclude = u"INCLUDE"_s;
const QString kLineCondition = u"IFL"_s;
const QString kBlockEnd = u"FI~"_s;

// How many arguments a command takes, read from its usage.
struct ArgumentCount {
    explicit ArgumentCount(QStringView usage)
        : most(usage.isEmpty() ? 0 : static_cast<int>(usage.count(u';')) + 1),
          least(most - static_cast<int>(usage.count(u'['))) {}

    int most;
    int least;
};

bool isKnown(const QString& argument) {
    return !argument.contains(kAnything);
}

QString firstItem(const ScriptLine& line) {
    return line.text.left(line.text.indexOf(u'~'));
}

bool isComment(const ScriptLine& line) {
    return line.text.isEmpty() || line.text.startsWith(u'#');
}

// nullopt for a text that is no whole number.
std::optional<int> wholeNumber(const QString& text) {
    try {
        return wholeNumber32(text);
    } catch (const RunTimeError&) {
        return std::nullopt;
    }
}

}  // namespace

ScriptCheck::ScriptCheck(PackFiles& files, const QSet<int>& askFields, VariableUse& variables, Findings& findings)
    : files_(files), askFields_(askFields), variables_(variables), findings_(findings), words_{kLineCondition} {
    for (const Command* command : allCommands()) words_ += command->word.toString();
}

void ScriptCheck::check(const QString& path) {
    lines_.clear();
    lastBlockEnds_.clear();
    openedLabels_.clear();
    openLoop_.reset();
    try {
        read(path);
    } catch (const RunTimeError& error) {
        findings_.error(files_.place(path), error.text());
        return;
    }
    for (size_t i = 0; i < lines_.size(); ++i) {
        checkLine(lines_[i].content, {lines_[i].place, static_cast<int>(i), lines_[i].included, false});
    }
    if (openLoop_) findings_.error(*openLoop_, u"FOREACHREC without its ROF"_s);
}

// The lines in the order in which the engine reads them, each with its own place.
void ScriptCheck::read(const QString& path) {
    Place place = files_.place(path, 0);
    for (const QString& text : files_.lines(path)) {
        ++place.line;
        const ScriptLine line(cleanedScriptLine(text));
        if (line.text.isEmpty()) continue;
        if (firstItem(line) == kInclude && line.hasArgument) readInclude(line, place);
        append(line.text, place, false);
    }
}

void ScriptCheck::readInclude(const ScriptLine& line, const Place& place) {
    const QString& name = line.argument.raw();
    if (!files_.exists(name)) {
        findings_.error(place, u"the include %1 does not exist"_s.arg(name));
        return;
    }
    const QString path = files_.path(name);
    Place included = files_.place(path, 0);
    for (const QString& text : files_.lines(path)) {
        ++included.line;
        append(cleanedScriptLine(text), included, true);
    }
}

void ScriptCheck::append(const QString& text, const Place& place, bool included) {
    if (text.startsWith(kBlockEnd)) lastBlockEnds_[text.mid(kBlockEnd.size())] = static_cast<int>(lines_.size());
    lines_.push_back({ScriptLine(text), place, included});
}

void ScriptCheck::checkLine(const ScriptLine& line, const Spot& spot) {
    if (isComment(line)) return;
    if (line.condition) {
        checkCondition(line, spot);
        return;
    }
    if (line.command == nullptr) {
        const QString word = firstItem(line).trimmed().toUpper();
        const QString nearest = nearestWord(word, words_);
        findings_.error(spot.place, u"unknown command "_s + word.left(40) +
                                        (nearest.isEmpty() ? QString() : u"; did you mean "_s + nearest + u'?'));
        return;
    }
    if (line.text.count(u'~') > 1) findings_.warning(spot.place, u"what follows the second \"~\" is not read"_s);
    checkCommand(line, spot);
}

void ScriptCheck::checkCondition(const ScriptLine& line, const Spot& spot) {
    const auto quotes = line.text.count(u'"');
    if (quotes % 2 != 0 || quotes == 0) {
        findings_.error(spot.place, u"the double quotes of IFL do not pair"_s);
        if (quotes == 0) return;
    } else if (quotes > 4) {
        findings_.warning(spot.place, u"IFL reads two quoted lines; the others are not read"_s);
    }
    const QStringList parts = expanded(line.condition->comparison.raw(), spot.place).split(u';');
    if (parts.size() < 3) {
        findings_.error(spot.place, u"IFL needs left;operator;right"_s);
    } else {
        checkOperator(parts[1], spot.place);
    }
    const Spot branch{spot.place, spot.index, spot.included, true};
    checkLine(*line.condition->thenLine, branch);
    checkLine(*line.condition->elseLine, branch);
}

void ScriptCheck::checkCommand(const ScriptLine& line, const Spot& spot) {
    const Command& command = *line.command;
    if (command.roles[0] == Role::Include) checkInclude(line, spot);
    const QString argument = scanned(line, spot.place);
    if (!checkCount(line, argument, spot.place)) return;
    const bool several = command.usage.contains(u';');
    const QStringList arguments = several ? argument.split(u';') : QStringList(argument);
    for (size_t i = 0; i < command.roles.size(); ++i) {
        const auto at = static_cast<qsizetype>(i);
        const bool given = line.hasArgument && at < arguments.size();
        // These mean something without an argument too.
        const bool always = command.roles[i] == Role::BlockLabel || command.roles[i] == Role::LoopEnd;
        if (given || always) checkArgument(command.roles[i], given ? arguments[at] : QString(), spot);
    }
}

// The argument as the command takes it, as far as that is known.
QString ScriptCheck::scanned(const ScriptLine& line, const Place& place) {
    const QString& raw = line.argument.raw();
    const bool query = line.command->roles[0] == Role::Query;
    if (query || line.command->argument == Command::Argument::Expanded) return expanded(raw, place);
    if (raw.contains(u'{')) findings_.warning(place, line.command->word + u" does not replace placeholders"_s);
    return raw;
}

QString ScriptCheck::expanded(const QString& text, const Place& place) {
    const PlaceholderScan scan = scanPlaceholders(text);
    if (!scan.fault.isEmpty()) findings_.error(place, scan.fault);
    for (const QString& name : scan.variables) variables_.read(name, place);
    return scan.text;
}

bool ScriptCheck::checkCount(const ScriptLine& line, const QString& argument, const Place& place) {
    const ArgumentCount wanted(line.command->usage);
    // One argument takes the whole text, ";" and all.
    const int pieces = wanted.most > 1 ? Pieces(argument, u';').count() : 1;
    const int given = line.hasArgument ? pieces : 0;
    const QString word = line.command->word.toString();
    const QString usage = word + u'~' + line.command->usage;
    const bool valueMayHoldMore = argument == kAnything;
    if (given < wanted.least && !valueMayHoldMore) {
        findings_.error(place,
                        u"%1 needs %2 arguments, not %3: %4"_s.arg(word).arg(wanted.least).arg(given).arg(usage));
        return false;
    }
    if (wanted.most == 0 && given > 0) {
        findings_.warning(place, word + u" takes no argument"_s);
    } else if (given > wanted.most) {
        findings_.warning(place,
                          u"%1 takes %2 arguments, not %3: %4"_s.arg(word).arg(wanted.most).arg(given).arg(usage));
    }
    return true;
}

void ScriptCheck::checkArgument(Role role, const QString& argument, const Spot& spot) {
    switch (role) {
        case Role::Variable:
            setVariable(argument, spot.place);
            break;
        case Role::VariableName:
            if (argument.startsWith(u'@'))
                findings_.warning(spot.place, u"the \"@\" is added: this sets @"_s + argument);
            variables_.set(u'@' + argument);
            break;
        case Role::VariablePrefix:
            variables_.set(u'@' + argument + u'_' + kAnything);
            break;
        case Role::Card:
            if (!argument.contains(u'{') && !argument.isEmpty() && !files_.cardExists(argument)) {
                findings_.error(spot.place, u"the card %1 does not exist"_s.arg(argument));
            }
            break;
        case Role::Formula:
            checkFormula(argument, spot.place);
            break;
        case Role::Expression:
            checkExpression(argument, spot.place);
            break;
        case Role::Operand:
            checkOperand(argument, spot.place);
            break;
        case Role::Operation:
            checkOperator(argument, spot.place);
            break;
        case Role::BlockLabel:
            beginBlock(argument, spot);
            break;
        case Role::BlockEnd:
            endBlock(argument, spot);
            break;
        case Role::LoopName:
            beginLoop(argument, spot);
            break;
        case Role::LoopEnd:
            endLoop(spot);
            break;
        case Role::AskField:
            checkAskField(argument, spot.place);
            break;
        case Role::Button:
            checkButton(argument, spot.place);
            break;
        case Role::Text:
        case Role::Include:
        case Role::Query:
            break;
    }
}

void ScriptCheck::checkInclude(const ScriptLine& line, const Spot& spot) {
    if (spot.branch) {
        findings_.error(spot.place, u"INCLUDE inside IFL is not read"_s);
    } else if (spot.included) {
        findings_.error(spot.place, u"INCLUDE inside an included file is not read"_s);
    } else if (firstItem(line) != kInclude) {
        findings_.error(spot.place, u"INCLUDE is read in capitals only, with its \"~\" right behind"_s);
    }
}

void ScriptCheck::checkFormula(const QString& formula, const Place& place) {
    if (!isKnown(formula)) return;
    if (!formula_.StoreExpression(formula.toStdString())) {
        findings_.error(place, u"formula: "_s + QString::fromStdString(formula_.ErrorDescription()));
    } else if (formula_.VarTop() > 0) {
        findings_.error(place, u"formula: %1 has no value; variables are written {@NAME}"_s.arg(
                                   QString::fromStdString(formula_.VarName(1))));
    }
}

void ScriptCheck::checkExpression(const QString& expression, const Place& place) {
    if (!isKnown(expression)) return;
    try {
        evaluator_.check(expression);
    } catch (const RunTimeError& error) {
        findings_.error(place, u"expression: %1 at position %2"_s.arg(error.text()).arg(error.position()));
    }
}

void ScriptCheck::checkOperand(const QString& operand, const Place& place) {
    constexpr QStringView kEvaluated = u"EVAL";
    if (operand.startsWith(kEvaluated)) checkExpression(operand.mid(kEvaluated.size()), place);
}

void ScriptCheck::checkOperator(const QString& operation, const Place& place) {
    if (isKnown(operation) && !isConditionOperator(operation)) {
        findings_.warning(place, u"\"%1\" is no operator: the condition is never true"_s.arg(operation));
    }
}

void ScriptCheck::checkAskField(const QString& number, const Place& place) {
    const QString first = number.section(u';', 0, 0);
    if (!isKnown(first)) return;
    const std::optional<int> field = wholeNumber(first);
    if (!field || !askFields_.contains(*field)) {
        findings_.error(place, u"ASKFIELDS.TXT has no field "_s + first);
    }
}

void ScriptCheck::checkButton(const QString& number, const Place& place) {
    if (!isKnown(number)) return;
    const std::optional<int> button = wholeNumber(number);
    if (!button || *button < 0 || *button >= CardTable::kCards) {
        findings_.error(place,
                        u"no card button %1: they are numbered 0 to %2"_s.arg(number).arg(CardTable::kCards - 1));
    }
}

void ScriptCheck::setVariable(const QString& name, const Place& place) {
    const bool readable = name.startsWith(u'@') || name.startsWith(kAnything);
    const bool tag = name.startsWith(u"AUTOTAG_") || name.startsWith(u"LASTCARDTAG");
    if (!readable && !tag) findings_.warning(place, u"no placeholder can read \"%1\": it has no \"@\""_s.arg(name));
    variables_.set(name);
}

void ScriptCheck::beginBlock(const QString& label, const Spot& spot) {
    if (isKnown(label)) {
        openedLabels_.insert(label);
        if (lastBlockEnds_.value(label, -1) < spot.index) {
            findings_.error(spot.place, u"IF without its line FI~%1"_s.arg(label));
        }
    } else {
        for (auto end = lastBlockEnds_.begin(); end != lastBlockEnds_.end(); ++end) openedLabels_.insert(end.key());
    }
}

void ScriptCheck::endBlock(const QString& label, const Spot& spot) {
    if (!openedLabels_.contains(label)) findings_.warning(spot.place, u"FI~%1 ends no IF"_s.arg(label));
}

void ScriptCheck::beginLoop(const QString& name, const Spot& spot) {
    variables_.set(u'@' + name);
    if (openLoop_) findings_.error(spot.place, u"FOREACHREC inside another: only one loop is kept"_s);
    openLoop_ = spot.place;
}

void ScriptCheck::endLoop(const Spot& spot) {
    if (!openLoop_) findings_.error(spot.place, u"ROF without its FOREACHREC"_s);
    // A ROF that a condition may leave out ends the loop all the same.
    openLoop_.reset();
}

}  // namespace zelvor
