#include "base/text_file.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStringDecoder>
#include <QStringEncoder>

#include "base/run_time_error.h"

namespace zelvor {

void throwOpenError(const QString& path, QFileDevice::FileError error, Opening opening) {
    const QFileInfo info(path);
    if (info.isDir()) throw RunTimeError(ErrorNumber::PathFileAccessError, path);
    if (!info.dir().exists()) throw RunTimeError(ErrorNumber::PathNotFound, path);
    if (error == QFileDevice::ResourceError) throw RunTimeError(ErrorNumber::DiskFull, path);
    if (info.exists() || opening == Opening::ForWriting) throw RunTimeError(ErrorNumber::PermissionDenied, path);
    throw RunTimeError(ErrorNumber::FileNotFound, path);
}

QByteArray readWholeFile(const QString& path) {
    QFile file(path);
    if (QFileInfo(path).isDir() || !file.open(QIODevice::ReadOnly)) throwOpenError(path, file.error());
    QByteArray bytes = file.read(TextFiles::kLargestFile + 1);
    if (bytes.size() > TextFiles::kLargestFile) throw RunTimeError(ErrorNumber::OutOfMemory, path);
    if (file.error() != QFileDevice::NoError) throw RunTimeError(ErrorNumber::PathFileAccessError, path);
    return bytes;
}

QString TextFiles::read(const QString& path) const {
    return decode(readWholeFile(path));
}

QStringList TextFiles::readLines(const QString& path) const {
    return splitLines(read(path));
}

QString TextFiles::decode(const QByteArray& bytes) const {
    QStringDecoder utf8(QStringConverter::Utf8);
    QString text = utf8.decode(bytes);
    if (!utf8.hasError()) return text;
    QStringDecoder codePage(readingCodePage_.constData());
    return codePage.decode(bytes);
}

QByteArray TextFiles::encode(const QString& text) const {
    constexpr char kNoPlace = '\x1A';  // what the encoder writes for a character that the code page does not have
    QStringEncoder encoder(writingCodePage_.constData());
    QByteArray bytes = encoder.encode(text);
    if (!text.contains(QLatin1Char(kNoPlace))) bytes.replace(kNoPlace, '?');
    return bytes;
}

QStringList splitLines(const QString& text) {
    QStringList lines;
    qsizetype start = 0;
    while (start < text.size()) {
        const qsizetype lineFeed = text.indexOf(u'\n', start);
        const qsizetype end = lineFeed < 0 ? text.size() : lineFeed;
        const bool carriageReturn = end > start && text[end - 1] == u'\r';
        lines += text.mid(start, end - start - (carriageReturn ? 1 : 0));
        start = end + 1;
    }
    return lines;
}

void replaceFile(const QString& path, const QByteArray& bytes) {
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly)) throwOpenError(path, file.error(), Opening::ForWriting);
    file.write(bytes);
    if (!file.commit()) {
        const bool full = file.error() == QFileDevice::WriteError || file.error() == QFileDevice::ResourceError;
        throw RunTimeError(full ? ErrorNumber::DiskFull : ErrorNumber::PathFileAccessError, path);
    }
}

}  // namespace zelvor
