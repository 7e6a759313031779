#include "rehearsal/template_folder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace zelvor::rehearsal {

namespace {

constexpr QStringView kTemplateEndings[] = {u".html"};
constexpr QStringView kPictureEndings[] = {u".png", u".jpg", u".jpeg", u".svg", u".webp", u".gif"};

// The entry of DIR that SEGMENT names; letter case counts only when it has to choose.
std::optional<QString> entryNamed(const QDir& dir, const QString& segment) {
    constexpr auto kFilter = QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden | QDir::System;
    if (QFileInfo::exists(dir.filePath(segment))) {
        return segment;
    }
    for (const QString& entry : dir.entryList(kFilter, QDir::Name)) {
        if (entry.compare(segment, Qt::CaseInsensitive) == 0) {
            return entry;
        }
    }
    return std::nullopt;
}

}  // namespace

std::optional<QString> TemplateFolder::findTemplate(const QString& name) const {
    return findWithEnding(name, kTemplateEndings);
}

std::optional<QString> TemplateFolder::findPicture(const QString& name) const {
    return findWithEnding(name, kPictureEndings);
}

std::optional<QByteArray> TemplateFolder::read(const QString& name) const {
    const std::optional<QString> found = find(name);
    if (!found) {
        return std::nullopt;
    }
    QFile file(QDir(path_).filePath(*found));
    if (file.size() > kMaxFile || !file.open(QIODevice::ReadOnly)) {
        return std::nullopt;
    }
    return file.readAll();
}

// Walks down a segment at a time, so that no step can leave the folder.
std::optional<QString> TemplateFolder::find(const QString& name) const {
    QDir dir(path_);
    QStringList walked;
    QStringList segments = QString(name).replace(u'\\', u'/').split(u'/');
    while (!segments.isEmpty()) {
        const QString segment = segments.takeFirst();
        const bool steps =
            segment.isEmpty() || segment == "."_L1 || segment == ".."_L1 || segment.contains(QChar::Null);
        const std::optional<QString> entry = steps ? std::nullopt : entryNamed(dir, segment);
        if (!entry) {
            return std::nullopt;
        }
        const QFileInfo info(dir.filePath(*entry));
        if (info.isSymLink() || !(segments.isEmpty() ? info.isFile() : info.isDir())) {
            return std::nullopt;
        }
        walked.append(*entry);
        dir.setPath(info.filePath());
    }
    return walked.join(u'/');
}

std::optional<QString> TemplateFolder::findWithEnding(const QString& name, std::span<const QStringView> endings) const {
    for (const QStringView ending : endings) {
        const bool hasEnding = name.endsWith(ending, Qt::CaseInsensitive);
        if (auto found = find(hasEnding ? name : name + ending)) {
            return found;
        }
    }
    return std::nullopt;
}

}  // namespace zelvor::rehearsal
