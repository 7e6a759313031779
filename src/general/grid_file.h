#pragma once

#include <QByteArray>
#include <QStringList>
#include <array>
#include <vector>

namespace zelvor {

// The columns of a row of general variables.
namespace general_column {
constexpr int kValue = 0;
constexpr int kTitle = 1;
constexpr int kVariable = 2;
constexpr int kHelp = 3;
constexpr int kCount = 4;
}  // namespace general_column

using GeneralRow = std::array<QString, general_column::kCount>;

// The grid file's format: UTF-8, a version line, then a line a row, each ended by LF (CR LF is read too); fields
// separated by TAB; TAB, CR, LF and backslash inside a field are written \t, \r, \n and \\.
QByteArray gridBytes(const std::vector<GeneralRow>& rows);

struct GridReading {
    std::vector<GeneralRow> rows;  // those before the damage
    int damagedLine = 0;           // counted from 1; 0 when the file is sound
    QString damage;                // what is wrong with it
};
// Reads any bytes. A last line without an end has been cut off and counts as damaged.
GridReading readGrid(const QByteArray& bytes);

// The rows of a plain-text source: fields separated by "," (or TAB), a line a row.
struct ImportedRows {
    struct Remark {
        int line;
        QString text;  // "2 fields, filled with empty ones"
    };
    std::vector<GeneralRow> rows;
    std::vector<Remark> remarks;
};
ImportedRows importRows(const QStringList& lines);

}  // namespace zelvor
