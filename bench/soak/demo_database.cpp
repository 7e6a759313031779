#include "soak_desk/demo_database.h"

#include <QFile>
#include <QProcess>

using namespace Qt::StringLiterals;

namespace zelvor {

void DemoDatabase::fill() const {
    for (const QString& name : {u"/demo.sql"_s, u"/live.sql"_s}) {
        QFile sql(QStringLiteral(DEMO_FOLDER) + name);
        if (!sql.open(QIODevice::ReadOnly) || !change(sql.readAll()))
            qFatal("cannot make the demo's database: is its client program installed?");
    }
}

QByteArray SqliteDemo::connectionString() const {
    return "Driver=SQLite3;Database=" + QFile::encodeName(path());
}

bool SqliteDemo::change(const QByteArray& sql) const {
    QProcess sqlite;
    sqlite.start(u"sqlite3"_s, {u"-bail"_s, path()});
    sqlite.write(sql);
    sqlite.closeWriteChannel();
    return sqlite.waitForFinished() && sqlite.exitStatus() == QProcess::NormalExit && sqlite.exitCode() == 0;
}

}  // namespace zelvor
