#include "app_check/script_check.h"

#include <algorithm>

#include "app_check/nearest_word.h"
#include "app_check/placeholder_scan.h"
#include "base/run_time_error.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

using Role = Command::Role;

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

bool isComment(const ScriptLine& line) {
    return line.text.isEmpty() || line.text.startsWith(u'#');
}

}  // namespace

ScriptCheck::ScriptCheck(PackFiles& files, const QSet<int>& askFields)
    : files_(files), arguments_(files, askFields), words_{kLineCondition} {
    for (const Command* command : allCommands()) words_ += command->word.toString();
}

ScriptFacts ScriptCheck::check(const QString& path) {
    facts_ = {};
    commands_.clear();
    lastBlockEnds_.clear();
    openedLabels_.clear();
    openLoop_.reset();
    loopBegun_ = false;
    std::vector<PlacedLine> lines;
    try {
        lines = readScriptLines(files_, path, facts_);
    } catch (const RunTimeError& error) {
        facts_.findings.error(files_.place(path), error.text());
        return facts_;
    }
    for (const PlacedLine& line : lines) noteCommands(line.content);
    for (size_t i = 0; i < lines.size(); ++i) {
        const QString& text = lines[i].content.text;
        if (text.startsWith(kBlockEnd)) lastBlockEnds_[text.mid(kBlockEnd.size())] = static_cast<int>(i);
    }
    for (size_t i = 0; i < lines.size(); ++i) {
        checkLine(lines[i].content, {lines[i].place, static_cast<int>(i), lines[i].included, false});
    }
    if (openLoop_) facts_.findings.error(*openLoop_, u"FOREACHREC without its ROF"_s);
    return facts_;
}

void ScriptCheck::noteCommands(const ScriptLine& line) {
    if (line.condition) {
        for (const ScriptLine* branch : {line.condition->thenLine.get(), line.condition->elseLine.get()}) {
            if (branch != nullptr) noteCommands(*branch);
        }
    } else if (line.command != nullptr) {
        commands_.insert(line.command->word);
    }
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
        facts_.findings.error(spot.place, u"unknown command "_s + word.left(40) +
                                              (nearest.isEmpty() ? QString() : u"; did you mean "_s + nearest + u'?'));
        return;
    }
    if (line.text.count(u'~') > 1) facts_.findings.warning(spot.place, u"what follows the second \"~\" is not read"_s);
    checkCommand(line, spot);
}

void ScriptCheck::checkCondition(const ScriptLine& line, const Spot& spot) {
    const auto quotes = line.text.count(u'"');
    if (quotes % 2 != 0 || quotes == 0) {
        facts_.findings.error(spot.place, u"the double quotes of IFL do not pair"_s);
        if (quotes == 0) return;
    } else if (quotes > 4) {
        facts_.findings.warning(spot.place, u"IFL reads two quoted lines; the others are not read"_s);
    }
    const QStringList parts = expanded(line.condition->comparison.raw(), spot.place).split(u';');
    if (parts.size() < 3) {
        facts_.findings.error(spot.place, u"IFL needs left;operator;right"_s);
    } else {
        checkOperator(parts[1], spot.place, facts_.findings);
    }
    const Spot branch{spot.place, spot.index, spot.included, true};
    checkLine(*line.condition->thenLine, branch);
    checkLine(*line.condition->elseLine, branch);
}

void ScriptCheck::checkCommand(const ScriptLine& line, const Spot& spot) {
    const Command& command = *line.command;
    const QString argument = scanned(line, spot.place);
    if (!checkCount(line, argument, spot.place)) return;
    if (command.roles[0] == Role::Include) checkInclude(line, spot);
    if (!command.needs.isEmpty() && !commands_.contains(command.needs)) {
        facts_.findings.error(spot.place, command.word + u" without "_s + command.needs);
    }
    noteWaiting(command, argument, spot.place);
    const bool several = command.usage.contains(u';');
    const auto pieces = [&](const QString& text) { return several ? text.split(u';') : QStringList(text); };
    const GivenArguments arguments{pieces(argument), pieces(line.argument.raw())};
    for (size_t i = 0; i < command.roles.size(); ++i) {
        const auto at = static_cast<qsizetype>(i);
        const bool given = line.hasArgument && at < arguments.values.size();
        if (checkFlow(command.roles[i], given ? arguments.values[at] : QString(), given, spot)) continue;
        if (given) arguments_.check(command, at, arguments, spot.place, facts_);
    }
}

// Blocks and loops, which other lines belong to; false for every other role.
bool ScriptCheck::checkFlow(Role role, const QString& argument, bool given, const Spot& spot) {
    // A block's label and a loop's end mean something without an argument too.
    switch (role) {
        case Role::BlockLabel:
            beginBlock(argument, spot);
            return true;
        case Role::LoopEnd:
            endLoop(spot);
            return true;
        case Role::BlockEnd:
            if (given) endBlock(argument, spot);
            return true;
        case Role::LoopName:
            if (given) beginLoop(argument, spot);
            return true;
        default:
            return false;
    }
}

void ScriptCheck::noteWaiting(const Command& command, const QString& argument, const Place& place) {
    const bool play = command.roles[0] == Role::CommandLine && argument.contains(u"PLAY");
    const auto is = [&](Role role) { return std::ranges::find(command.roles, role) != command.roles.end(); };
    if (play || is(Role::Waits)) facts_.waits.push_back({play ? u"PLAY"_s : command.word.toString(), place});
    if (is(Role::WaitsForDatabase)) facts_.queries.push_back({command.word.toString(), place});
}

// The argument as the command takes it, as far as that is known.
QString ScriptCheck::scanned(const ScriptLine& line, const Place& place) {
    const QString& raw = line.argument.raw();
    const bool query = line.command->roles[0] == Role::Query;
    if (query || line.command->argument == Command::Argument::Expanded) return expanded(raw, place);
    if (raw.contains(u'{')) facts_.findings.warning(place, line.command->word + u" does not replace placeholders"_s);
    return raw;
}

QString ScriptCheck::expanded(const QString& text, const Place& place) {
    const PlaceholderScan scan = scanPlaceholders(text);
    if (!scan.fault.isEmpty()) facts_.findings.error(place, scan.fault);
    for (const QString& name : scan.variables) facts_.reads.push_back({name, place});
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
        facts_.findings.error(place,
                              u"%1 needs %2 arguments, not %3: %4"_s.arg(word).arg(wanted.least).arg(given).arg(usage));
        return false;
    }
    if (wanted.most == 0 && given > 0) {
        facts_.findings.warning(place, word + u" takes no argument"_s);
    } else if (given > wanted.most) {
        facts_.findings.warning(
            place, u"%1 takes %2 arguments, not %3: %4"_s.arg(word).arg(wanted.most).arg(given).arg(usage));
    }
    return true;
}

void ScriptCheck::checkInclude(const ScriptLine& line, const Spot& spot) {
    if (spot.branch) {
        facts_.findings.error(spot.place, u"INCLUDE inside IFL is not read"_s);
    } else if (spot.included) {
        facts_.findings.error(spot.place, u"INCLUDE inside an included file is not read"_s);
    } else if (!isInclude(line)) {
        facts_.findings.error(spot.place, u"INCLUDE is read in capitals only, with its \"~\" right behind"_s);
    }
}

void ScriptCheck::beginBlock(const QString& label, const Spot& spot) {
    if (isKnown(label)) {
        openedLabels_.insert(label);
        if (lastBlockEnds_.value(label, -1) < spot.index) {
            facts_.findings.error(spot.place, u"IF without its line FI~%1"_s.arg(label));
        }
    } else {
        for (auto end = lastBlockEnds_.begin(); end != lastBlockEnds_.end(); ++end) openedLabels_.insert(end.key());
    }
}

void ScriptCheck::endBlock(const QString& label, const Spot& spot) {
    if (!openedLabels_.contains(label)) facts_.findings.warning(spot.place, u"FI~%1 ends no IF"_s.arg(label));
}

void ScriptCheck::beginLoop(const QString& name, const Spot& spot) {
    facts_.sets.push_back({u'@' + name, spot.place});
    if (openLoop_) facts_.findings.error(spot.place, u"FOREACHREC inside another: only one loop is kept"_s);
    openLoop_ = spot.place;
    loopBegun_ = true;
}

void ScriptCheck::endLoop(const Spot& spot) {
    // One that stands under a condition may go round a loop that a later one ends.
    if (!loopBegun_) facts_.findings.error(spot.place, u"ROF without its FOREACHREC"_s);
    if (!spot.branch) loopBegun_ = false;
    // A ROF that a condition may leave out ends the loop all the same.
    openLoop_.reset();
}

}  // namespace zelvor
