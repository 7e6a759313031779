#pragma once

#include <QDateTime>
#include <QFile>
#include <QLocale>
#include <QString>

#include "base/app_folder.h"
#include "base/text_file.h"

namespace zelvor {

// MODULES\CASPAROUT.TXT, the log of what went to the graphics servers. It grows across runs; each line ends in CR LF
// and is on the disk as soon as it is written.
class CasparLog {
 public:
    CasparLog(AppFolder folder, TextFiles files) : folder_(std::move(folder)), files_(std::move(files)) {}

    // Opens the file for appending and writes its heading. Throws 61, 70, 75 or 76 with the path when it cannot.
    void start(const QDateTime& now);
    // Writes the closing lines and closes the file; nothing when it is not open.
    void stop(const QDateTime& now);
    // Writes one line, line breaks in it as blanks; nothing when the file is not open. Throws 61 when the disk is full;
    // what was cut there ends before the next line.
    void write(const QString& line);

    [[nodiscard]] bool isOpen() const { return file_.isOpen(); }

 private:
    AppFolder folder_;
    TextFiles files_;
    QFile file_;
    bool inLine_ = false;  // the disk was full in the middle of one
};

// The general date-and-time form of a locale: its short date, and its time with seconds and without a time zone.
QString generalDateText(const QDateTime& when, const QLocale& locale);

// The text with each run of CR and LF as one blank.
QString oneLine(QString text);

}  // namespace zelvor
