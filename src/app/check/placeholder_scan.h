#pragma once

#include <QStringList>

namespace zelvor {

// Stands for a placeholder, whose value is known only when the card runs.
constexpr QChar kAnything = u'\uFFFC';

// A text whose placeholders have been looked at, not replaced.
struct PlaceholderScan {
    QString text;           // each outermost placeholder replaced by kAnything
    QStringList variables;  // the names that it reads; kAnything where a placeholder stands inside a name
    QString fault;          // why its expansion would fail; empty when it would not
};

// Reads a text as EXPAND_VARS does: from the inside out, and not at all when it begins with "%".
PlaceholderScan scanPlaceholders(const QString& text);

}  // namespace zelvor
