#include "app_check/pack_files.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>

#include "engine/card_engine.h"

using namespace Qt::StringLiterals;

namespace zelvor {

QString PackFiles::path(QStringView name) const {
    return folder_.resolve(folder_.packFile(language_, name));
}

bool PackFiles::exists(QStringView name) {
    const QString key = name.toString();
    const auto known = exists_.constFind(key);
    if (known != exists_.constEnd()) return *known;
    return *exists_.insert(key, isThere(path(name)));
}

bool PackFiles::isThere(const QString& path) const {
    return texts_.contains(path) || QFileInfo(path).isFile();
}

bool PackFiles::cardExists(const QString& card) {
    return exists(CardEngine::scriptName(card));
}

const QStringList& PackFiles::lines(const QString& path) {
    const auto known = lines_.constFind(path);
    if (known != lines_.constEnd()) return *known;
    const auto text = texts_.constFind(path);
    return *lines_.insert(path, text != texts_.constEnd() ? splitLines(*text) : files_.readLines(path));
}

void PackFiles::setText(const QString& path, const QString& text) {
    texts_[path] = text;
    forget(path);
}

void PackFiles::dropText(const QString& path) {
    texts_.remove(path);
    forget(path);
}

void PackFiles::forget(const QString& path) {
    lines_.remove(path);
    exists_.clear();
}

Place PackFiles::place(const QString& path, int line) const {
    return {QDir(folder_.path()).relativeFilePath(path), line};
}

QStringList PackFiles::scripts() const {
    QStringList found = texts_.keys();
    QDirIterator files(folder_.resolve(folder_.packFolder(language_)), QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString file = files.next();
        if (!texts_.contains(file) && isThere(file)) found += file;  // not a link to a device
    }
    found.removeIf([](const QString& file) { return !file.endsWith(u".csp"_s, Qt::CaseInsensitive); });
    found.sort();
    return found;
}

}  // namespace zelvor
