#pragma once

#include <QStringView>

namespace zelvor {

// Whether one of the characters occurs in the text. One pass that never branches, of which compilers make one for many
// characters at a time: template data is thousands long, and a search for each character costs twice as much.
template <class... Characters>
bool holdsAny(QStringView text, Characters... characters) {
    char16_t found = 0;
    for (const QChar c : text) found |= (... | static_cast<char16_t>(c == characters));
    return found != 0;
}

}  // namespace zelvor
