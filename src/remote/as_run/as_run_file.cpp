#include "as_run/as_run_file.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>
#include <cerrno>

using namespace Qt::StringLiterals;

namespace zelvor {

AsRunFile::AsRunFile(const AppFolder& folder, QDate day) : file_(pathOf(folder, day)) {}

QString AsRunFile::pathOf(const AppFolder& folder, QDate day) {
    return folder.resolve(u"AS-RUN\\"_s + day.toString(Qt::ISODate) + u".jsonl"_s);
}

void AsRunFile::append(const QJsonObject& object) {
    if (!file_.isOpen() && !open()) return fail();
    QByteArray line = QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n';
    if (inLine_) line.prepend('\n');
    if (!write(line)) return fail();
    failed_ = false;
}

bool AsRunFile::open() {
    const QFileInfo found(path());
    if (!QDir().mkpath(found.path())) return false;
    // A pipe or a device of that name would hold up the console.
    if (found.exists() && !found.isFile()) {
        errno = EINVAL;
        return false;
    }
    if (!file_.open(QIODevice::ReadWrite | QIODevice::Append | QIODevice::Unbuffered)) return false;
    char last = '\n';
    inLine_ = file_.size() > 0 && file_.seek(file_.size() - 1) && file_.read(&last, 1) == 1 && last != '\n';
    return true;
}

bool AsRunFile::write(const QByteArray& bytes) {
    const qint64 written = file_.write(bytes);
    if (written > 0) inLine_ = bytes.at(written - 1) != '\n';
    return written == bytes.size();
}

void AsRunFile::fail() {
    const QString reason = qt_error_string(errno);
    if (!std::exchange(failed_, true)) Q_EMIT failed(reason);
}

}  // namespace zelvor
