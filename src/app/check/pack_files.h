#pragma once

#include <QHash>
#include <QStringList>
#include <utility>

#include "app_check/findings.h"
#include "base/app_folder.h"
#include "base/text_file.h"

namespace zelvor {

// The files of one pack, each read once.
class PackFiles {
 public:
    // The folder must outlive this.
    PackFiles(const AppFolder& folder, QString language) : folder_(folder), language_(std::move(language)) {}

    // The platform's path of a file named as in a script or a card table.
    [[nodiscard]] QString path(QStringView name) const;
    [[nodiscard]] bool exists(QStringView name);
    // The same of a path.
    [[nodiscard]] bool isThere(const QString& path) const;
    // Whether the script that a card of that name runs exists.
    [[nodiscard]] bool cardExists(const QString& card);
    // Throws RunTimeError when it cannot be read.
    const QStringList& lines(const QString& path);
    // From now on the file holds that text, whatever is on disk.
    void setText(const QString& path, const QString& text);
    // From now on the file holds what is on disk.
    void dropText(const QString& path);
    // The file is read again, and looked for again.
    void forget(const QString& path);
    // A line of a file as findings name it: relative to the application folder.
    [[nodiscard]] Place place(const QString& path, int line = 1) const;
    // The paths of all card scripts, sorted.
    [[nodiscard]] QStringList scripts() const;

 private:
    const AppFolder& folder_;
    QString language_;
    TextFiles files_;
    QHash<QString, QStringList> lines_;
    QHash<QString, QString> texts_;  // held in memory instead of on disk
    QHash<QString, bool> exists_;
};

}  // namespace zelvor
