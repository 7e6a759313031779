#pragma once

#include <QJsonObject>
#include <QString>

#include "base/questions.h"

namespace zelvor {

// What is told to the outside, as JSON.
QJsonObject questionJson(const Question& question, qint64 number);

// Whether it names a file of the pack's folder itself: no path, no "..", nothing a terminal would act on.
bool isScriptName(const QString& name);
// A variable's name from outside: 1 to 100 printable characters.
bool isVariableName(const QString& name);
// A whole number of one to three digits, as paths and OSC addresses hold them; -1 for anything else.
int numberInPath(const QString& piece);
// A text that fits into one line of a log, a script or a command.
bool isOneLine(const QString& text);

}  // namespace zelvor
