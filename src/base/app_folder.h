#pragma once

#include <QString>

namespace zelvor {

// The application folder and the files under it. Paths are written with backslashes by the system and by packs;
// resolve() finds them on this platform, without regard to case, and to blanks at a name's end, where the disk minds
// them.
class AppFolder {
 public:
    // Any spelling of an existing folder; a trailing separator is dropped.
    explicit AppFolder(const QString& folder);

    // Without a trailing separator, as the platform writes it.
    [[nodiscard]] const QString& path() const { return path_; }
    // The system's spelling of a file in MODULES: path() + "\MODULES\" + name.
    [[nodiscard]] QString modulesFile(QStringView name) const;
    // The system's spelling of a pack's folder: path() + "\MODULES\QRD_" + language.
    [[nodiscard]] QString packFolder(QStringView language) const;
    // The system's spelling of a pack's file: packFolder() + "\" + name.
    [[nodiscard]] QString packFile(QStringView language, QStringView name) const;

    // The platform's path of a path in any spelling; a relative one is taken from the application folder. What does
    // not exist keeps its own spelling from there on.
    [[nodiscard]] QString resolve(const QString& anyPath) const;
    [[nodiscard]] bool exists(const QString& anyPath) const;

 private:
    QString path_;
};

}  // namespace zelvor
