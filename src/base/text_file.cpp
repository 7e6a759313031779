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

void expectFile(const QString& path) {
    const QFileInfo info(path);
    if (info.exists() && !info.isFile()) throw RunTimeError(ErrorNumber::PathFileAccessError, path);
}

QByteArray readWholeFile(const QString& path) {
    expectFile(path);
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) throwOpenError(path, file.error());
    // In pieces: a read makes room for all it is asked for, which would be the largest file's each time.
    constexpr qint64 kPiece = qint64{64} * 1024;
    QByteArray bytes;
    for (QByteArray piece = file.read(kPiece); !piece.isEmpty(); piece = file.read(kPiece)) {
        bytes += piece;
        if (bytes.size() > TextFiles::kLargestFile) throw RunTimeError(ErrorNumber::OutOfMemory, path);
    }
    if (file.error() != QFileDevice::NoError) throw RunTimeError(ErrorNumber::PathFileAccessError, path);
    return bytes;
}

namespace {

// The byte order of a text in UTF-16: by its byte-order mark, or by the zero beside its first character.
std::optional<QStringConverter::Encoding> utf16Of(QByteArrayView bytes) {
    if (bytes.size() < 2 || bytes.size() % 2 != 0) return std::nullopt;
    if (bytes.startsWith("\xFF\xFE") || (bytes[0] != 0 && bytes[1] == 0)) return QStringConverter::Utf16LE;
    if (bytes.startsWith("\xFE\xFF") || (bytes[0] == 0 && bytes[1] != 0)) return QStringConverter::Utf16BE;
    return std::nullopt;
}

}  // namespace

QString TextFiles::read(const QString& path) const {
    return decode(readWholeFile(path));
}

QStringList TextFiles::readLines(const QString& path) const {
    return splitLines(read(path));
}

QString TextFiles::decode(const QByteArray& bytes) const {
    if (const auto utf16 = utf16Of(bytes)) return QStringDecoder(*utf16).decode(bytes);
    // Stateless: a character cut off by the end is an error, too, not one that waits for more.
    QStringDecoder utf8(QStringConverter::Utf8, QStringConverter::Flag::Stateless);
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
        qsizetype end = start;
        while (end < text.size() && text[end] != u'\r' && text[end] != u'\n') ++end;
        lines += text.mid(start, end - start);
        const bool both = QStringView(text).mid(end, 2) == u"\r\n";
        start = end + (both ? 2 : 1);
    }
    return lines;
}

void replaceFile(const QString& path, const QByteArray& bytes) {
    expectFile(path);
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly)) throwOpenError(path, file.error(), Opening::ForWriting);
    // What is written only in commit() could fail there unnoticed, and an empty file would take the place of the old
    // one.
    const bool written = file.write(bytes) == bytes.size() && file.flush();
    if (!written) file.cancelWriting();
    if (!file.commit()) {
        const bool full = file.error() == QFileDevice::WriteError || file.error() == QFileDevice::ResourceError;
        throw RunTimeError(full ? ErrorNumber::DiskFull : ErrorNumber::PathFileAccessError, path);
    }
}

}  // namespace zelvor
