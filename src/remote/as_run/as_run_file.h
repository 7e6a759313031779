#pragma once

#include <QDate>
#include <QFile>
#include <QJsonObject>
#include <QObject>
#include <QString>

#include "base/app_folder.h"

namespace zelvor {

// The as-run record of an evening on the disk: AS-RUN/2026-11-21.jsonl in the application folder, a JSON object a line.
// A line is handed to the system in one write, so that a killed program leaves whole lines and at most one cut short,
// which stays a line of its own. Several consoles may write to one file.
class AsRunFile : public QObject {
    Q_OBJECT

 public:
    // day: on which the console started.
    AsRunFile(const AppFolder& folder, QDate day);

    // Appends it. What cannot be written is left out, and tried anew with the next one.
    void append(const QJsonObject& object);
    [[nodiscard]] QString path() const { return file_.fileName(); }

    // Where the record of a day stands, whether it is there or not.
    static QString pathOf(const AppFolder& folder, QDate day);

 Q_SIGNALS:
    // The record has a gap from here on; told once, until it can be written again.
    void failed(const QString& reason);

 private:
    bool open();
    bool write(const QByteArray& bytes);
    void fail();

    QFile file_;
    bool inLine_ = false;  // the file ends within a line
    bool failed_ = false;
};

}  // namespace zelvor
