#pragma once

#include <QString>

namespace zelvor::odbc {

// The first word of a statement in lower case, comments and opening brackets before it passed over; empty when there is
// none. A comment that MariaDB executes is no comment.
QString firstWord(const QString& sql);

// Whether a statement that gives rows may have changed some, too, as INSERT ... RETURNING does.
bool mayWrite(const QString& sql);

// Whether MariaDB's ODBC driver is sound after such a statement. After others (OPTIMIZE TABLE, DO, HELP, several in
// one) the next one crashes or hangs in it.
bool isSafeForMariaDbDriver(const QString& sql);

}  // namespace zelvor::odbc
