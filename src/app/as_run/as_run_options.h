#pragma once

#include <QDate>
#include <QString>
#include <QStringList>
#include <optional>

namespace zelvor {

// What `zelvor as-run` is asked for.
struct AsRunOptions {
    bool help = false;
    QString appFolder;
    std::optional<QDate> day;  // none: the newest record
    bool csv = false;
    bool lines = false;    // with the lines of each card
    bool all = false;      // with the cards that fire by themselves
    bool refused = false;  // only cards of which a line was refused or not sent
    QString card;          // only cards whose caption or script holds this
    QString from;          // only cards that this one asked for: "remote", "10.0.0.5"
    std::optional<qint16> into;
    QString language;
};

// Throws UsageError.
AsRunOptions readAsRunOptions(const QStringList& arguments);
QString asRunHelp();

}  // namespace zelvor
