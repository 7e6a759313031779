#pragma once

#include <QString>
#include <optional>

namespace zelvor {

// What `zelvor feed` is asked beyond the datagrams of a clock of its own: a source of live data, and tables to fill.
struct LiveOptions {
    QString source;  // "livestats:HOST:PORT", "daktronics:…", a recording; empty: none
    std::optional<qint16> into;
    QString appFolder;
    QString language;  // empty: the first pack's
    QString recordFile;
    QString logFile;
    bool makeTables = false;
    bool replaceTables = false;
    bool checksums = true;
};

class CommandLine;

// Throws UsageError.
LiveOptions readLiveOptions(const CommandLine& line);

}  // namespace zelvor
