#include "app_check/pack_check.h"

#include <QFileInfo>
#include <algorithm>

#include "app_check/ask_field_check.h"
#include "app_check/card_table_check.h"
#include "app_check/connection_check.h"
#include "app_check/variable_use.h"
#include "base/run_time_error.h"
#include "engine/card_engine.h"
#include "general_rules/row_faults.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

// firstLine: of the file, where the first row stands.
void checkRows(const std::vector<GeneralRow>& rows, PackFiles& files, const QString& path, int firstLine,
               VariableUse& variables, Findings& findings) {
    const std::vector<QString> faults = rowFaults(rows);
    for (std::size_t i = 0; i < rows.size(); ++i) {
        variables.set(rows[i][general_column::kVariable]);
        if (!faults[i].isEmpty()) findings.warning(files.place(path, firstLine + static_cast<int>(i)), faults[i]);
    }
}

// The grid and its plain source; a pack need not have either.
void readGeneralVariables(PackFiles& files, VariableUse& variables, Findings& findings) {
    const auto readFile = [&](const QString& name, const auto& read) {
        const QString path = files.path(name);
        if (!files.isThere(path) && !QFileInfo::exists(path)) return;
        try {
            read(path);
        } catch (const RunTimeError& error) {
            findings.error(files.place(path), error.text());
        }
    };
    readFile(u"infodata.txt"_s, [&](const QString& path) {
        const ImportedRows imported = importRows(files.lines(path));
        for (const ImportedRows::Remark& remark : imported.remarks)
            findings.warning(files.place(path, remark.line), remark.text);
        checkRows(imported.rows, files, path, 1, variables, findings);
    });
    readFile(u"infodata.dat"_s, [&](const QString& path) {
        const GridReading reading = readGrid(readWholeFile(path));
        constexpr int kFirstLine = 2;  // below the version
        checkRows(reading.rows, files, path, kFirstLine, variables, findings);
        if (reading.damagedLine > 0) findings.error(files.place(path, reading.damagedLine), reading.damage);
    });
}

}  // namespace

PackCheck::PackCheck(const AppFolder& folder, const QString& code) : files_(folder, code), check_(files_, askFields_) {}

Findings PackCheck::findings() {
    Findings findings;
    VariableUse variables;
    const std::vector<NamePlace> tableCards = checkCardTable(files_, findings);
    if (!files_.exists(CardEngine::kStartCard)) {
        findings.warning(files_.place(files_.path(CardEngine::kStartCard)),
                         u"the script of the start-up does not exist"_s);
    }
    checkConnections(files_, findings);
    readGeneralVariables(files_, variables, findings);
    const QSet<int> askFields = checkAskFields(files_, variables, findings);
    if (askFields != askFields_) scripts_.clear();
    askFields_ = askFields;
    readScripts();
    const QSet<QString> included = onlyIncluded(tableCards);
    for (const auto& [path, facts] : scripts_) {
        if (included.contains(path)) continue;
        findings.append(facts.findings);
        for (const NamePlace& set : facts.sets) variables.set(set.name);
        for (const NamePlace& read : facts.reads) variables.read(read.name, read.place);
    }
    warnOfWaiting(findings);
    variables.report(findings);
    return findings;
}

void PackCheck::changed(const QString& path) {
    files_.forget(path);
    const auto reads = [&](const auto& script) { return script.second.sources.contains(path); };
    // One that is new or gone may be an include or a card of any script.
    if (!files_.isThere(path) || std::ranges::none_of(scripts_, reads)) {
        scripts_.clear();
    } else {
        std::erase_if(scripts_, reads);
    }
}

void PackCheck::readScripts() {
    const QStringList paths = files_.scripts();
    std::erase_if(scripts_, [&](const auto& script) { return !paths.contains(script.first); });
    for (const QString& path : paths) {
        if (!scripts_.contains(path)) scripts_.emplace(path, check_.check(path));
    }
}

// The scripts that others include and that nothing names as a card.
QSet<QString> PackCheck::onlyIncluded(const std::vector<NamePlace>& tableCards) const {
    QSet<QString> included;
    QSet<QString> cards{files_.path(CardEngine::kStartCard), files_.path(u"invoke.csp"), files_.path(u"auto5ada.csp")};
    const auto add = [&](const std::vector<NamePlace>& named) {
        for (const NamePlace& card : named) cards += files_.path(CardEngine::scriptName(card.name));
    };
    add(tableCards);
    for (const auto& [path, facts] : scripts_) {
        for (const QString& source : facts.sources.mid(1)) included += source;
    }
    if (included.isEmpty()) return {};
    for (const auto& [path, facts] : scripts_) add(facts.cards);
    return included - cards;
}

// While such a card waits, what it sends of the clock stands still.
void PackCheck::warnOfWaiting(Findings& findings) const {
    for (const auto& [path, facts] : scripts_) {
        for (const NamePlace& card : facts.autoCards) {
            const auto run = scripts_.find(files_.path(CardEngine::scriptName(card.name)));
            if (run == scripts_.end()) continue;
            const auto warn = [&](const std::vector<NamePlace>& waits, const QString& text) {
                for (const NamePlace& wait : waits) findings.warning(wait.place, text.arg(wait.name));
            };
            warn(run->second.waits, u"%1 in a card that a clock runs: the clock on air waits for it"_s);
            warn(run->second.queries,
                 u"%1 in a card that a clock runs: other cards wait for its answer, and a press cancels it"_s);
        }
    }
}

void checkPacks(const AppFolder& folder, Findings& findings) {
    Place place{u"MODULES/PACKS.TXT"_s, 0};
    QStringList packs;
    try {
        packs = TextFiles().readLines(folder.resolve(folder.modulesFile(u"PACKS.TXT")));
    } catch (const RunTimeError& error) {
        findings.error({place.file}, error.text());
    }
    for (const QString& line : packs) {
        ++place.line;
        if (line.trimmed().isEmpty()) continue;
        const QString code = line.section(u';', 0, 0);
        if (folder.exists(folder.packFolder(code))) {
            findings.append(PackCheck(folder, code).findings());
        } else {
            findings.warning(place, u"the pack %1 has no folder"_s.arg(code));
        }
    }
}

}  // namespace zelvor
