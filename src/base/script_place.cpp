#include "base/script_place.h"

using namespace Qt::StringLiterals;

namespace zelvor {

QString ScriptPlace::text() const {
    if (line == 0) return card;
    return file.isEmpty() ? QString(card + u", "_s + lineText()) : QString(card + u" ("_s + lineText() + u')');
}

QString ScriptPlace::lineText() const {
    const QString counted = u"line %1"_s.arg(line);
    return file.isEmpty() ? counted : file + u", "_s + counted;
}

}  // namespace zelvor
