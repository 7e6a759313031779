#pragma once

#include <QJsonObject>
#include <vector>

#include "app_language_server/workspace.h"

namespace zelvor {

// A stretch of one line of a file, from 0.
struct TextSpan {
    QString path;
    int line = 0;
    qsizetype from = 0;
    qsizetype to = 0;
};

// Every place of the pack's scripts and ask fields that names the variable ("@NAME"), with its "@" or, behind a command
// that puts one in front, without it; the span is that of NAME alone.
std::vector<TextSpan> placesOf(OpenPack& pack, const QString& variable);

}  // namespace zelvor
