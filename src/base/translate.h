#pragma once

#include <QCoreApplication>
#include <QString>

namespace zelvor {

// A text of the console's own in the operator's language; itself where there is no translation. lupdate finds texts by
// this name, so both are literals; of a text in a table, which QT_TRANSLATE_NOOP has marked, the row hands it over.
// room: who says it. text: UTF-8, its values as "%1".
[[nodiscard]] inline QString translate(const char* room, const char* text) {
    return QCoreApplication::translate(room, text);
}

}  // namespace zelvor
