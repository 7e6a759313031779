#include "as_run/as_run_file.h"

#include <fcntl.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <cerrno>
#include <system_error>

using namespace Qt::StringLiterals;

namespace zelvor {

AsRunFile::AsRunFile(const AppFolder& folder, QDate day) : path_(pathOf(folder, day)) {}

AsRunFile::~AsRunFile() {
    if (file_ >= 0) ::close(file_);
}

QString AsRunFile::pathOf(const AppFolder& folder, QDate day) {
    return folder.resolve(u"AS-RUN\\"_s + day.toString(Qt::ISODate) + u".jsonl"_s);
}

void AsRunFile::append(const QJsonObject& object) {
    if (file_ < 0 && !open()) return fail();
    QByteArray line = QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n';
    if (inLine_) line.prepend('\n');
    if (!write(line)) return fail();
    failed_ = false;
}

// A pipe or a device of that name would hold up the console.
bool AsRunFile::open() {
    QDir().mkpath(QFileInfo(path_).path());
    constexpr mode_t kMode = 0644;
    const int file =
        ::open(QFile::encodeName(path_).constData(), O_RDWR | O_CREAT | O_APPEND | O_CLOEXEC | O_NONBLOCK, kMode);
    if (file < 0) return false;
    if (!QFileInfo(path_).isFile()) {
        ::close(file);
        errno = EINVAL;
        return false;
    }
    file_ = file;
    char last = '\n';
    const off_t end = ::lseek(file_, 0, SEEK_END);
    inLine_ = end > 0 && ::pread(file_, &last, 1, end - 1) == 1 && last != '\n';
    return true;
}

bool AsRunFile::write(const QByteArray& bytes) {
    const ssize_t written = ::write(file_, bytes.constData(), static_cast<size_t>(bytes.size()));
    if (written == bytes.size()) {
        inLine_ = false;
        return true;
    }
    if (written > 0) {
        inLine_ = bytes.at(written - 1) != '\n';
        errno = ENOSPC;
    }
    return false;
}

void AsRunFile::fail() {
    const QString reason = QString::fromStdString(std::generic_category().message(errno));
    if (!std::exchange(failed_, true)) Q_EMIT failed(reason);
}

}  // namespace zelvor
