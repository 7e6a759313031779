#pragma once

#include <QStringList>
#include <QStringView>

namespace zelvor::rehearsal {

// Cuts a line into tokens at blanks, as CasparCG servers do. Double quotes group (and end a token where they close, so
// "" is an empty token), unquoted parentheses group and stay in the token. Backslash acts everywhere: \\ \" and \n
// (a line feed) stand for one character, any other pair is dropped. A quote that is never closed groups to the end.
QStringList tokenize(QStringView line);

}  // namespace zelvor::rehearsal
