#include "base/app_folder.h"

#include <QDir>
#include <QFileInfo>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

// Blanks and full stops at a name's end are no part of it where packs are written.
QStringView withoutEnd(QStringView name) {
    while (name.endsWith(u' ') || name.endsWith(u'.')) name.chop(1);
    return name;
}

// The entry of `folder` that equals `name` but for case and its end; `name` itself when there is none.
QString spellingOnDisk(const QString& folder, const QString& name) {
    const QStringList entries =
        QDir(folder).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden | QDir::System);
    const auto match = std::ranges::find_if(entries, [&](const QString& entry) {
        return withoutEnd(entry).compare(withoutEnd(name), Qt::CaseInsensitive) == 0;
    });
    return match == entries.end() ? name : *match;
}

}  // namespace

AppFolder::AppFolder(const QString& folder) : path_(QDir::cleanPath(QDir(folder).absolutePath())) {}

QString AppFolder::modulesFile(QStringView name) const {
    return path_ + u"\\MODULES\\"_s + name;
}

QString AppFolder::packFolder(QStringView language) const {
    return modulesFile(QString(u"QRD_"_s + language));
}

QString AppFolder::packFile(QStringView language, QStringView name) const {
    return packFolder(language) + u'\\' + name;
}

QString AppFolder::resolve(const QString& anyPath) const {
    QString path = anyPath;
    path.replace(u'\\', u'/');
    if (QDir::isRelativePath(path)) path = path_ + u'/' + path;
    path = QDir::cleanPath(path);
    if (QFileInfo::exists(path)) return path;

    QString found = QDir::rootPath();
    const QStringList components = path.mid(found.size()).split(u'/', Qt::SkipEmptyParts);
    for (const QString& component : components) {
        const QString folder = found;
        if (!found.endsWith(u'/')) found += u'/';
        found += QFileInfo::exists(found + component) ? component : spellingOnDisk(folder, component);
    }
    return found;
}

bool AppFolder::exists(const QString& anyPath) const {
    return QFileInfo::exists(resolve(anyPath));
}

}  // namespace zelvor
