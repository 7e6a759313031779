#include "app_check/pack_check.h"

#include "app_check/ask_field_check.h"
#include "app_check/card_table_check.h"
#include "app_check/script_check.h"
#include "base/run_time_error.h"
#include "engine/card_engine.h"
#include "general_rules/grid_file.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

void readGeneralVariables(PackFiles& files, VariableUse& variables, Findings& findings) {
    const QString path = files.path(u"infodata.dat");
    if (!files.exists(u"infodata.dat")) return;  // a pack need not have any
    GridReading reading;
    try {
        reading = readGrid(readWholeFile(path));
    } catch (const RunTimeError& error) {
        findings.error(files.place(path), error.text());
    }
    for (const GeneralRow& row : reading.rows) variables.set(row[general_column::kVariable]);
    if (reading.damagedLine > 0) findings.error(files.place(path, reading.damagedLine), reading.damage);
}

}  // namespace

void checkPack(const AppFolder& folder, const QString& code, Findings& findings) {
    PackFiles files(folder, code);
    VariableUse variables;
    checkCardTable(files, findings);
    if (!files.exists(CardEngine::kStartCard)) {
        findings.warning(files.place(files.path(CardEngine::kStartCard)),
                         u"the script of the start-up does not exist"_s);
    }
    readGeneralVariables(files, variables, findings);
    const QSet<int> askFields = checkAskFields(files, variables, findings);
    ScriptCheck scripts(files, askFields, variables, findings);
    for (const QString& path : files.scripts()) scripts.check(path);
    variables.report(findings);
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
            checkPack(folder, code, findings);
        } else {
            findings.warning(place, u"the pack %1 has no folder"_s.arg(code));
        }
    }
}

}  // namespace zelvor
