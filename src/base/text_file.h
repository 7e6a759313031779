#pragma once

#include <QByteArray>
#include <QFileDevice>
#include <QString>
#include <QStringList>

namespace zelvor {

// How the system's text files are read and written. UTF-16 and UTF-8 are told by their byte-order marks and their
// bytes, anything else is read in the single-byte code page; written is UTF-8 unless a code page was named.
class TextFiles {
 public:
    // A file larger than this (bytes) is refused with 7 Out of memory.
    static constexpr qint64 kLargestFile = qint64{64} * 1024 * 1024;

    TextFiles() = default;
    // Reads and writes in a code page that Qt knows, e.g. "windows-1253", "ISO-8859-7", "UTF-8".
    explicit TextFiles(const QByteArray& codePage) : readingCodePage_(codePage), writingCodePage_(codePage) {}

    // The whole file. Throws as readWholeFile() does.
    [[nodiscard]] QString read(const QString& path) const;
    // The file's lines without their ends (CR LF, LF or CR). A last line without an end counts, an empty rest does not.
    [[nodiscard]] QStringList readLines(const QString& path) const;

    [[nodiscard]] QString decode(const QByteArray& bytes) const;
    [[nodiscard]] QByteArray encode(const QString& text) const;

 private:
    QByteArray readingCodePage_ = "windows-1253";
    QByteArray writingCodePage_ = "UTF-8";
};

// The bytes of a file. Throws 53, 70, 75 or 76 with the path when it cannot be read, 7 when it is too large.
QByteArray readWholeFile(const QString& path);

// Splits at CR LF, LF and CR; an empty rest behind the last line end is no line.
QStringList splitLines(const QString& text);

// Writes the file whole or not at all (a temporary file beside it, then renamed). Throws 61, 70, 75 or 76 with the
// path.
void replaceFile(const QString& path, const QByteArray& bytes);

// Throws 75 with the path for what is there and is no file: a pipe or a device may keep its reader or writer waiting
// without end, and is nothing to put a file in the place of.
void expectFile(const QString& path);

// Throws the error that a file which could not be opened stands for: 53, 61, 70, 75 or 76 with the path.
enum class Opening { ForReading, ForWriting };
[[noreturn]] void throwOpenError(const QString& path, QFileDevice::FileError error,
                                 Opening opening = Opening::ForReading);

}  // namespace zelvor
