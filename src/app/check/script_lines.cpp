#include "app_check/script_lines.h"

#include "base/run_time_error.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

void readInclude(PackFiles& files, const ScriptLine& line, const Place& place, ScriptFacts& facts,
                 std::vector<PlacedLine>& lines) {
    const QString& name = line.argument.raw();
    if (!files.exists(name)) {
        facts.findings.error(place, u"the include %1 does not exist"_s.arg(name));
        return;
    }
    const QString path = files.path(name);
    facts.sources += path;
    Place included = files.place(path, 0);
    try {
        for (const QString& text : files.lines(path)) {
            ++included.line;
            lines.push_back({ScriptLine(cleanedScriptLine(text)), included, true});
        }
    } catch (const RunTimeError& error) {
        facts.findings.error(place, error.text());
    }
}

}  // namespace

QString firstItem(const ScriptLine& line) {
    return line.text.left(line.text.indexOf(u'~'));
}

bool isInclude(const ScriptLine& line) {
    return line.hasArgument && firstItem(line) == u"INCLUDE";
}

std::vector<PlacedLine> readScriptLines(PackFiles& files, const QString& path, ScriptFacts& facts) {
    std::vector<PlacedLine> lines;
    facts.sources += path;
    Place place = files.place(path, 0);
    for (const QString& text : files.lines(path)) {
        ++place.line;
        ScriptLine line(cleanedScriptLine(text));
        if (line.text.isEmpty()) continue;
        if (isInclude(line)) readInclude(files, line, place, facts, lines);
        lines.push_back({std::move(line), place, false});
    }
    return lines;
}

}  // namespace zelvor
