#include "rehearsal/reply.h"

using namespace Qt::StringLiterals;

namespace zelvor::rehearsal::reply {

QString ok(QStringView word) {
    return u"202 %1 OK\r\n"_s.arg(word);
}
QString okWith(QStringView word, QStringView data) {
    return u"201 %1 OK\r\n%2\r\n"_s.arg(word, data);
}

QString okLines(QStringView word, const QStringList& lines) {
    QString reply = u"200 %1 OK\r\n"_s.arg(word);
    for (const QString& line : lines) {
        reply += line + u"\r\n"_s;
    }
    return reply + u"\r\n"_s;
}

QString unknown(QStringView line) {
    return u"400 ERROR\r\n"_s + line + u"\r\n"_s;
}
QString requestIdMissing() {
    return u"402  ERROR\r\n"_s;
}
QString parameterMissing(QStringView command) {
    return u"402 %1 FAILED\r\n"_s.arg(command);
}
QString illegal(QStringView command) {
    return u"403 %1 FAILED\r\n"_s.arg(command);
}
QString notFound(QStringView command) {
    return u"404 %1 FAILED\r\n"_s.arg(command);
}
QString failed(QStringView command) {
    return u"501 %1 FAILED\r\n"_s.arg(command);
}
QString noAccess(QStringView command) {
    return u"503 %1 FAILED\r\n"_s.arg(command);
}

}  // namespace zelvor::rehearsal::reply
