#include "system/file_stamp.h"

#include <QDateTime>
#include <QFileInfo>

namespace zelvor {

std::optional<FileStamp> fileStamp(const QString& path) {
    const QFileInfo file(path);
    if (!file.exists()) return std::nullopt;
    const auto nanoseconds = [](const QDateTime& time) { return time.toMSecsSinceEpoch() * 1'000'000; };
    return FileStamp{nanoseconds(file.lastModified()), nanoseconds(file.metadataChangeTime()), file.size()};
}

}  // namespace zelvor
