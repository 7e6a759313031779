#include <QStringDecoder>

#include "general_rules/general_cell.h"
#include "general_rules/grid_file.h"
#include "support/fuzz_input.h"

using namespace zelvor;

// The rows of a damaged file are those before the damage; written they are read as the same.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const GridReading reading = readGrid(test::fuzzBytes(data, size));
    test::require((reading.damagedLine == 0) == reading.damage.isEmpty());
    for (const auto& rows : {reading.rows, importRows(test::fuzzLines(data, size)).rows}) {
        const GridReading again = readGrid(gridBytes(rows));
        // Half a character, which a file in UTF-16 may hold, cannot be written; a mark at a field's start is a
        // character.
        auto writable = rows;
        for (GeneralRow& row : writable) {
            for (QString& field : row) {
                QStringDecoder utf8(QStringConverter::Utf8, QStringConverter::Flag::ConvertInitialBom);
                field = utf8.decode(field.toUtf8());
            }
        }
        test::require(again.damagedLine == 0 && again.rows == writable);
        for (const GeneralRow& row : rows) {
            const GeneralCell cell(row[general_column::kValue]);
            test::require(cell.kind() == GeneralCell::Kind::Choice || cell.choices().isEmpty());
            static_cast<void>(GeneralCell(cell.withValue(cell.value())).value());
        }
    }
    return 0;
}
