#include "general_rules/row_faults.h"

#include <QHash>

#include "base/translate.h"
#include "general_rules/general_cell.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

QString choiceFault(const QString& value) {
    const GeneralCell cell(value);
    if (cell.kind() != GeneralCell::Kind::Choice) return {};
    if (!GeneralCell::isWellFormed(value)) return translate("general", "choices without a value and \":\" before them");
    return cell.choices().join(u'|').contains(u':')
               ? translate("general", "a choice holds \":\", the value is cut there")
               : QString();
}

}  // namespace

std::vector<QString> rowFaults(const std::vector<GeneralRow>& rows) {
    QHash<QString, QList<qsizetype>> rowsOfName;
    for (std::size_t i = 0; i < rows.size(); ++i)
        rowsOfName[rows[i][general_column::kVariable]] += static_cast<qsizetype>(i);
    std::vector<QString> faults;
    faults.reserve(rows.size());
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const QString& name = rows[i][general_column::kVariable];
        QStringList words;
        if (name.trimmed().isEmpty()) {
            words += translate("general", "no name");
        } else if (!name.startsWith(u'@')) {
            words += translate("general", "no \"@\" before the name");
        }
        const QList<qsizetype>& same = rowsOfName[name];
        if (same.size() > 1 && !name.trimmed().isEmpty()) {
            const qsizetype other = same.front() == static_cast<qsizetype>(i) ? same[1] : same.front();
            words += translate("general", "the name of row %1").arg(other + 1);
        }
        const QString choice = choiceFault(rows[i][general_column::kValue]);
        if (!choice.isEmpty()) words += choice;
        faults.push_back(words.join(u", "_s));
    }
    return faults;
}

}  // namespace zelvor
