#include "data/connection_list.h"

#include "base/number.h"

using namespace Qt::StringLiterals;

namespace zelvor {

ConnectionList::ConnectionList(const QStringList& lines) {
    for (const QString& line : lines) {
        if (line.trimmed().isEmpty()) continue;
        const QStringList fields = line.split(u"=="_s);
        entries_.push_back({fields.value(0), fields.value(1), fields.value(2)});
    }
}

QString ConnectionList::menuText() const {
    QString menu;
    for (const Entry& entry : entries_) menu += entry.number + u'\t' + entry.description + u"\r\n"_s;
    return menu;
}

QString ConnectionList::find(qint16 number) const {
    QString found;
    for (const Entry& entry : entries_) {
        if (Val(QString(u'0' + entry.number)) == number) found = entry.connectionString;
    }
    return found;
}

}  // namespace zelvor
