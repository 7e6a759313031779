#include "engine/arguments.h"

namespace zelvor {

Pieces::Pieces(QStringView text, QChar separator) {
    split(text, separator, 1);
}

Pieces::Pieces(QStringView text, QStringView separator) {
    if (separator.isEmpty()) {
        if (!text.isEmpty()) pieces_.append(text);
    } else {
        split(text, separator, separator.size());
    }
}

template <class Separator>
void Pieces::split(QStringView text, Separator separator, qsizetype width) {
    if (text.isEmpty()) return;
    qsizetype start = 0;
    for (qsizetype at = text.indexOf(separator); at >= 0; at = text.indexOf(separator, start)) {
        pieces_.append(text.mid(start, at - start));
        start = at + width;
    }
    pieces_.append(text.mid(start));
}

}  // namespace zelvor
