#pragma once

#include <QString>
#include <optional>

namespace zelvor {

// What tells one version of a file from another. Times are nanoseconds since 1970.
struct FileStamp {
    qint64 modified = 0;
    // When it last changed as a file: a copy that keeps the other file's time and has its size still changes this one.
    qint64 changed = 0;
    qint64 size = 0;     // bytes
    quint64 number = 0;  // of the file on its disk; 0 where the system gives none

    bool operator==(const FileStamp&) const = default;
};

// Null when there is no such file.
std::optional<FileStamp> fileStamp(const QString& path);

}  // namespace zelvor
