#include "engine/arguments.h"

namespace zelvor {

// Arguments are a few dozen characters: a plain loop is twice as fast as a search that is made ready for long texts.
Pieces::Pieces(QStringView text, QChar separator) {
    if (text.isEmpty()) return;
    const QChar* first = text.begin();
    for (const QChar* at = first; at != text.end(); ++at) {
        if (*at != separator) continue;
        pieces_.append({first, at});
        first = at + 1;
    }
    pieces_.append({first, text.end()});
}

Pieces::Pieces(QStringView text, QStringView separator) {
    if (text.isEmpty()) return;
    qsizetype start = 0;
    if (!separator.isEmpty()) {
        for (qsizetype at = text.indexOf(separator); at >= 0; at = text.indexOf(separator, start)) {
            pieces_.append(text.mid(start, at - start));
            start = at + separator.size();
        }
    }
    pieces_.append(text.mid(start));
}

}  // namespace zelvor
