#pragma once

#include <QByteArrayView>

#include "base/value.h"
#include "data/character_set.h"

namespace zelvor::odbc {

// What a column holds, as far as its cells are read differently.
enum class ColumnKind { Integer, Double, Decimal, Boolean, Date, Text, Binary };

// sqlType: the driver's SQL_… type code; one that is not known is Text.
ColumnKind columnKind(int sqlType);

// A cell's value from the driver's text of it. Columns need not keep to their type (SQLite's do not): a text that is
// nothing of its kind becomes a text. A number of more digits than a double keeps becomes a text with all its digits.
Value cellValue(ColumnKind kind, QByteArrayView bytes, CharacterSet& characterSet);

}  // namespace zelvor::odbc
