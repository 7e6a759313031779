#pragma once

#include <QString>

namespace zelvor {

// A line of a card's script where an editor shows it: in the script itself or in a file that it includes, empty lines
// counted.
struct ScriptPlace {
    QString card = {};  // the script that runs; empty outside of a card run
    QString file = {};  // the included file; empty for the script itself
    int line = 0;       // from 1; 0 before the first

    // "player.csp, line 6" or "player.csp (part.inc, line 3)"; the script alone before its first line.
    [[nodiscard]] QString text() const;
    // "line 6" or "part.inc, line 3".
    [[nodiscard]] QString lineText() const;
};

}  // namespace zelvor
