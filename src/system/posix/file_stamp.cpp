#include "system/file_stamp.h"

#include <sys/stat.h>

#include <QFile>

namespace zelvor {

namespace {

constexpr qint64 nanoseconds(const timespec& time) {
    return qint64{time.tv_sec} * 1'000'000'000 + time.tv_nsec;
}

}  // namespace

std::optional<FileStamp> fileStamp(const QString& path) {
    struct stat file {};
    if (stat(QFile::encodeName(path).constData(), &file) != 0) return std::nullopt;
#ifdef __APPLE__
    return FileStamp{nanoseconds(file.st_mtimespec), nanoseconds(file.st_ctimespec), file.st_size, file.st_ino};
#else
    return FileStamp{nanoseconds(file.st_mtim), nanoseconds(file.st_ctim), file.st_size, file.st_ino};
#endif
}

}  // namespace zelvor
