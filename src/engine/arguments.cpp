#include "engine/arguments.h"

namespace zelvor {

Pieces::Pieces(QStringView text, QChar separator) {
    if (text.isEmpty()) return;
    qsizetype start = 0;
    for (qsizetype at = text.indexOf(separator); at >= 0; at = text.indexOf(separator, start)) {
        pieces_.append(text.mid(start, at - start));
        start = at + 1;
    }
    pieces_.append(text.mid(start));
}

}  // namespace zelvor
