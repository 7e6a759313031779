#include "app_check/connection_check.h"

#include <QFileInfo>
#include <QRegularExpression>
#include <utility>

#include "base/run_time_error.h"
#include "data/odbc_connection.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

// The driver that a connection string names; empty when it names none.
QString driverOf(const QString& connectionString) {
    static const QRegularExpression kDriver(u"(?:^|;)\\s*driver\\s*=\\s*(?:\\{([^}]*)\\}|([^;]*))"_s,
                                            QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch match = kDriver.match(connectionString);
    return QString(match.captured(1) + match.captured(2)).trimmed();
}

class ConnectionCheck {
 public:
    ConnectionCheck(PackFiles& files, QString path, Findings& findings)
        : files_(files), path_(std::move(path)), findings_(findings), drivers_(odbc::installedDrivers()) {}

    void check() {
        const QStringList& lines = files_.lines(path_);
        for (int at = 0; at < lines.size(); ++at) {
            if (!lines[at].trimmed().isEmpty()) checkLine(lines[at].split(u"=="_s), at + 1);
        }
    }

 private:
    void checkLine(const QStringList& fields, int line) {
        const Place place = files_.place(path_, line);
        checkNumber(fields[0].trimmed(), place);
        if (fields.size() < 3) {
            findings_.error(place, u"a connection is number==description==string"_s);
            return;
        }
        if (fields.size() > 3) findings_.error(place, u"the connection string ends at its own \"==\""_s);
        checkString(fields[2], place);
    }

    void checkNumber(const QString& text, const Place& place) {
        bool isNumber = false;
        const int number = text.toShort(&isNumber);
        if (!isNumber) {
            const bool isComment = text.startsWith(u'#') || text.startsWith(u'\'') || text.startsWith(u"//");
            findings_.error(place, isComment ? u"there are no comments here: the line is connection 0"_s
                                             : u"no number of 16 bits before the first \"==\""_s);
            return;
        }
        if (const int first = lineOf_.value(number)) {
            findings_.warning(place,
                              u"connection %1 stands in line %2, too; the last one counts"_s.arg(number).arg(first));
        }
        lineOf_[number] = place.line;
    }

    void checkString(const QString& connectionString, const Place& place) {
        try {
            const QString driver = driverOf(odbc::odbcPart(connectionString));
            const bool isKnown = drivers_.contains(driver, Qt::CaseInsensitive) || QFileInfo::exists(driver);
            if (!driver.isEmpty() && !isKnown)
                findings_.warning(place, u"no ODBC driver of this machine is called \"%1\""_s.arg(driver));
        } catch (const RunTimeError& error) {
            findings_.error(place, error.text());
        }
    }

    PackFiles& files_;
    QString path_;
    Findings& findings_;
    QStringList drivers_;
    QHash<int, int> lineOf_;  // of each number the last line
};

}  // namespace

void checkConnections(PackFiles& files, Findings& findings) {
    const QString path = files.path(u"CONNECTIONS.TXT");
    if (!files.exists(u"CONNECTIONS.TXT")) {
        findings.error(files.place(path), u"the file does not exist"_s);
        return;
    }
    try {
        ConnectionCheck(files, path, findings).check();
    } catch (const RunTimeError& error) {
        findings.error(files.place(path), error.text());
    }
}

}  // namespace zelvor
