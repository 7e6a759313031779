#pragma once

#include <QJsonArray>

#include "app_language_server/workspace.h"

namespace zelvor {

// What may be written at a place of a script's line: commands, variables, controls, field ids, files or functions.
QJsonArray completionsAt(OpenPack& pack, const QString& line, qsizetype column);

// What the word at a place of a script's line is; empty for nothing that is known. Markdown.
QString hoverAt(const QString& line, qsizetype column);

}  // namespace zelvor
