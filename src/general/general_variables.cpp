#include "general_rules/general_variables.h"

#include <QFile>

#include "base/translate.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

using Tell = ErrorTrap::Tell;

const QString kWindowTitle = u"General Vars"_s;
constexpr qsizetype kShownRemarks = 20;

}  // namespace

GeneralVariables::GeneralVariables(ShowState& state, Program& program, Operator& operatorDesk)
    : state_(state), program_(program), operator_(operatorDesk) {}

QString GeneralVariables::file(QStringView name) const {
    return program_.folder.resolve(program_.folder.packFile(pack_, name));
}

void GeneralVariables::load() {
    pack_ = state_.language();
    onDisk_.reset();
    std::vector<GeneralRow> rows;
    program_.trap.run({u"frmGENERAL.Form_Load"_s}, Tell::Operator, [&] {
        if (!QFile::exists(file(u"infodata.dat"))) return;
        const QByteArray bytes = readWholeFile(file(u"infodata.dat"));
        onDisk_ = bytes;
        const GridReading reading = readGrid(bytes);
        rows = reading.rows;
        if (reading.damagedLine > 0) keepDamaged(bytes, reading);
    });
    grid_.setLoaded(rows, [this](const GeneralRow& row) {
        const Value* value = state_.variables.find(row[general_column::kVariable]);
        return value != nullptr && value->text() == GeneralCell(row[general_column::kValue]).value();
    });
}

void GeneralVariables::keepDamaged(const QByteArray& bytes, const GridReading& reading) {
    // A copy: until the grid is saved, the file itself keeps what it holds.
    const bool kept = program_.trap.run({u"frmGENERAL.Form_Load"_s}, Tell::Operator,
                                        [&] { replaceFile(file(u"infodata.dat") + u".bad"_s, bytes); });
    QString text = translate("general", "infodata.dat is damaged in line %1 (%2).")
                       .arg(QString::number(reading.damagedLine), reading.damage) +
                   u"\r\n"_s + translate("general", "Rows before it: %1.").arg(reading.rows.size());
    if (kept) text += u"\r\n"_s + translate("general", "The damaged file is kept as infodata.dat.bad.");
    operator_.message({}, kWindowTitle, text, Operator::Severity::Warning);
}

bool GeneralVariables::addRow() {
    GeneralRow row;
    const QString pack = pack_;
    bool answered = true;
    program_.trap.run({u"frmGENERAL.cmdADDROW_Click"_s}, Tell::Operator, [&] {
        struct Prompt {
            QStringView prompt;
            int column;
        };
        for (const Prompt& question :
             {Prompt{u"var", general_column::kVariable}, Prompt{u"title", general_column::kTitle},
              Prompt{u"help", general_column::kHelp}}) {
            const std::optional<QString> answer = operator_.input({}, kWindowTitle, question.prompt.toString(), {});
            answered = answered && answer.has_value();
            if (!answered) return;
            row[question.column] = *answer;
        }
    });
    // Another pack's rows may have been loaded while the questions were open.
    if (!answered || pack != pack_) return false;
    grid_.append({row});
    return true;
}

void GeneralVariables::removeRows(const QList<int>& rows) {
    if (rows.isEmpty()) return;
    // Another pack's rows may be loaded while the question is open.
    QList<QPersistentModelIndex> chosen;
    for (const int row : rows) chosen += QPersistentModelIndex(grid_.index(row, 0));
    const QString what = rows.size() > 1 ? translate("general", "%1 rows").arg(rows.size())
                                         : grid_.text(rows[0], general_column::kTitle) + u' ' +
                                               grid_.text(rows[0], general_column::kVariable);
    if (!operator_.yesNo({}, kWindowTitle, translate("general", "Remove %1?").arg(what.trimmed()))) return;
    for (const QPersistentModelIndex& row : chosen) {
        if (row.isValid()) grid_.removeRow(row.row());
    }
}

void GeneralVariables::importText() {
    program_.trap.run({u"frmGENERAL.cmdIMPORT_Click"_s}, Tell::Operator, [&] {
        const ImportedRows imported = importRows(program_.files.readLines(file(u"infodata.txt")));
        grid_.append(imported.rows);
        save();
        if (imported.remarks.empty()) return;
        QStringList shown;
        for (const ImportedRows::Remark& remark : imported.remarks) {
            shown += translate("general", "line %1: %2").arg(QString::number(remark.line), remark.text);
        }
        if (shown.size() > kShownRemarks) {
            shown = shown.mid(0, kShownRemarks) +
                    QStringList(translate("general", "and %1 more").arg(shown.size() - kShownRemarks));
        }
        operator_.message({}, kWindowTitle, u"infodata.txt\r\n"_s + shown.join(u"\r\n"_s), Operator::Severity::Warning);
    });
}

bool GeneralVariables::save() {
    bool saved = false;
    program_.trap.run({u"frmGENERAL.cmdSAVE_Click"_s}, Tell::Operator, [&] {
        const QString pack = pack_;
        // Another pack's rows may be loaded while the question is open.
        if (!mayReplaceFile() || pack != pack_) return;
        const QByteArray bytes = gridBytes(grid_.rows());
        replaceFile(file(u"infodata.dat"), bytes);
        onDisk_ = bytes;
        grid_.markSaved();
        saved = true;
    });
    return saved;
}

bool GeneralVariables::mayReplaceFile() {
    const QString path = file(u"infodata.dat");
    if (!QFile::exists(path)) return true;
    bool isAsRead = false;
    program_.trap.run({u"frmGENERAL.cmdSAVE_Click"_s}, Tell::LogOnly,
                      [&] { isAsRead = onDisk_ == readWholeFile(path); });
    return isAsRead ||
           operator_.yesNo({}, kWindowTitle,
                           translate("general", "infodata.dat has changed since it was read. Overwrite it?"));
}

void GeneralVariables::apply() {
    for (int row = 0; row < grid_.rowCount(); ++row)
        state_.variables.SetVar(grid_.text(row, general_column::kVariable), grid_.cell(row).value());
    grid_.markApplied();
}

}  // namespace zelvor
