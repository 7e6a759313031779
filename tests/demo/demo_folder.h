#pragma once

#include <QDirIterator>
#include <QFile>
#include <QMap>
#include <QProcess>
#include <QTemporaryDir>

namespace zelvor::test {

inline QString demoPath(const QString& name) {
    return QStringLiteral(DEMO_DIR "/") + name;
}

// A copy of the demo's packs with a fresh database, so that nothing is left in the demo itself. It is the working
// folder while the test runs, as the application folder is for the program.
class DemoFolder {
 public:
    DemoFolder() {
        QDirIterator files(demoPath(QStringLiteral("MODULES")), QDir::Files, QDirIterator::Subdirectories);
        const QDir demo(demoPath({}));
        while (files.hasNext()) {
            const QString copy = directory_.filePath(demo.relativeFilePath(files.next()));
            QDir().mkpath(QFileInfo(copy).path());
            isMade_ = QFile::copy(files.filePath(), copy) && isMade_;
        }
        const QString read = QStringLiteral(".read ");
        isMade_ =
            isMade_ && QProcess::execute(
                           QStringLiteral("sqlite3"),
                           {QStringLiteral("-bail"), QStringLiteral("-cmd"), QStringLiteral("pragma synchronous = off"),
                            path() + QStringLiteral("/demo.db"), read + demoPath(QStringLiteral("demo.sql")),
                            read + demoPath(QStringLiteral("live.sql"))}) == 0;
        isMade_ = QDir::setCurrent(path()) && isMade_;
    }

    bool isMade() const { return isMade_; }
    QString path() const { return directory_.path(); }
    QStringList scripts(const QString& pack) const {
        return QDir(path() + QStringLiteral("/MODULES/QRD_") + pack).entryList({QStringLiteral("*.csp")});
    }
    QString file(const QString& pack, const QString& name) const {
        return path() + QStringLiteral("/MODULES/QRD_") + pack + u'/' + name;
    }
    QString script(const QString& pack, const QString& card) const {
        QFile file(this->file(pack, card));
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    }

 private:
    QTemporaryDir directory_;
    bool isMade_ = directory_.isValid();
};

// What is chosen in the demo's pick lists, by their numbers: team, player, coach, statistic, any player, opponent.
inline const QMap<int, QString> kChoices{{1, QStringLiteral("1")},   {2, QStringLiteral("118")},
                                         {3, QStringLiteral("2")},   {4, QStringLiteral("1")},
                                         {5, QStringLiteral("205")}, {6, QStringLiteral("205")}};

}  // namespace zelvor::test
