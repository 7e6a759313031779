#include "app_cards/user_folder.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QTemporaryDir>

#include "base/translate.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

// True when everything below `from` stands below `to` as well.
bool copyTree(const QString& from, const QString& to) {
    const QDir source(from);
    QDirIterator entries(from, QDir::AllEntries | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        const QString path = entries.next();
        const QString copy = to + u'/' + source.relativeFilePath(path);
        if (entries.fileInfo().isDir() ? !QDir().mkpath(copy) : !QFile::copy(path, copy)) return false;
        // The installed files may be read-only; the copies are for editing.
        if (!QFile::setPermissions(copy, QFile::permissions(copy) | QFile::WriteOwner)) return false;
    }
    return true;
}

}  // namespace

QString installedDemo(const QString& programFolder) {
    return QDir::cleanPath(programFolder + u"/../share/zelvor-cards/demo"_s);
}

bool worksOnUserFolder(const QString& programFolder) {
    return !QFile::exists(programFolder + u"/MODULES"_s) && QFile::exists(installedDemo(programFolder) + u"/MODULES"_s);
}

QString makeUserFolder(const QString& folder, const QString& demo) {
    if (QFile::exists(folder)) return {};
    if (!QFile::exists(demo + u"/MODULES"_s)) return translate("cards", "There is no demo to copy: %1").arg(demo);
    QDir().mkpath(QFileInfo(folder).path());
    // Copied beside it first, so that a copy that broke off is never taken for a whole one.
    const QTemporaryDir part(folder + u"-XXXXXX"_s);
    const QString whole = part.filePath(u"demo"_s);
    if (part.isValid() && QDir().mkpath(whole) && copyTree(demo, whole) && QDir().rename(whole, folder)) return {};
    return QFile::exists(folder) ? QString()
                                 : translate("cards", "The folder %1 could not be made from %2").arg(folder, demo);
}

}  // namespace zelvor
