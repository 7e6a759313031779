#include "data/pack_connection.h"

#include "base/run_time_error.h"
#include "base/text_file.h"
#include "data/connection_list.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

QString firstLanguage(const AppFolder& folder, const TextFiles& files) {
    for (const QString& line : files.readLines(folder.resolve(folder.modulesFile(u"PACKS.TXT")))) {
        QString language = line.section(u';', 0, 0);
        if (!language.trimmed().isEmpty() && folder.exists(folder.packFolder(language))) return language;
    }
    return {};
}

}  // namespace

QString packConnection(const AppFolder& folder, QString language, qint16 number) {
    const TextFiles files;
    if (language.isEmpty()) language = firstLanguage(folder, files);
    const ConnectionList list(files.readLines(folder.resolve(folder.packFile(language, u"CONNECTIONS.TXT"))));
    QString found = list.find(number);
    if (found.isEmpty()) {
        throw RunTimeError::withText(ErrorNumber::DatabaseError,
                                     u"CONNECTIONS.TXT has no connection "_s + QString::number(number));
    }
    return found;
}

}  // namespace zelvor
