#pragma once

#include <QDateTime>
#include <QIODevice>
#include <QString>
#include <QStringList>
#include <optional>
#include <vector>

#include "link/reply_matcher.h"

namespace zelvor {

// A card as the record of a day tells of it.
struct AsRunCard {
    struct Line {
        qint64 number = 0;
        QString link;  // "main", "remote"
        QString text;
        QString in;     // "player.csp, line 6"
        QString reply;  // empty while none has come
        bool sent = true;
        [[nodiscard]] bool refused() const { return !sent || tellsOfError(reply); }
    };

    QString run;   // names it within the day
    QDateTime at;  // in the time zone of the record
    QString by;    // "button", "key", "timer", "feed", "remote", ...
    QString from;  // of one from outside: "HTTP 10.0.0.5"
    QString pack;
    int set = 0;  // 0 and row 0 for a card without a button
    int row = 0;
    QString caption;
    QString script;
    QStringList answers;
    std::vector<Line> lines;
    QString outcome;  // "ran", "no data", ...; empty when the record ends before
    QString sponsor;
    int times = 1;                // more for a card that ran by itself so often within a minute and put nothing on air
    std::optional<qint64> stood;  // milliseconds; none while a graphic of it stands, or when it had none

    [[nodiscard]] bool refused() const;
};

// The cards of a record in the order in which they were fired. Lines that are cut short, or no JSON objects, are
// passed over, and keys that are not known.
std::vector<AsRunCard> readAsRun(QIODevice& record);

}  // namespace zelvor
