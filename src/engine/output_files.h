#pragma once

#include <QFile>
#include <QString>
#include <optional>

#include "base/text_file.h"

namespace zelvor {

// The plain output file and the UTF-8 text that a script writes. They belong to one run and are closed when it ends,
// however it ends; what was written to the plain file by then is on disk.
class OutputFiles {
 public:
    explicit OutputFiles(const TextFiles& files) : files_(files) {}

    // Creates or empties a plain file; one that was open is closed first. Throws 70, 75 or 76.
    void open(const QString& path);
    // One line, ended by CR LF. Throws 52 without an open file, 61 when the disk is full.
    void writeLine(const QString& text);
    // Throws 52 without an open file.
    void close();

    // Begins an empty UTF-8 text.
    void openText() { text_.emplace(); }
    // Appends without a line end. Throws 91 without an open text.
    void appendText(const QString& text);
    // Writes the text, behind a byte-order mark, in place of the file in one step. Throws 91, 61, 70, 75 or 76.
    void saveText(const QString& path);

 private:
    QString& openedText();

    const TextFiles& files_;
    QFile file_;
    std::optional<QString> text_;
};

}  // namespace zelvor
