#pragma once

#include <QJsonObject>
#include <QString>

#include "engine/command_table.h"

namespace zelvor {

// The command line that a place in a script belongs to, the line itself or one of the two in an IFL.
struct CommandSpot {
    const Command* command = nullptr;  // null while the word is being written, and for IFL
    QString word;                      // upper case, as far as it is written
    bool inArgument = false;           // behind the "~"
    Command::Role role = Command::Role::Text;
    QString before;  // of the argument, up to the place
};
CommandSpot spotAt(const QString& line, qsizetype column);

// The word of letters, digits, "_", "@" and "." around a place.
QString wordAt(const QString& line, qsizetype column);

// A range within one line, lines and columns from 0, columns in UTF-16 units.
QJsonObject lineRange(int line, qsizetype from, qsizetype to);

}  // namespace zelvor
