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
    return u"200 %1 OK\r\n%2\r\n\r\n"_s.arg(word, lines.join("\r\n"_L1));
}

QString unknown(QStringView line) {
    return u"400 ERROR\r\n"_s + line + u"\r\n"_s;
}
QString noSuchChannel(QStringView word) {
    return u"401 %1 ERROR\r\n"_s.arg(word);
}
QString parameterMissing(QStringView word) {
    return u"402 %1 ERROR\r\n"_s.arg(word);
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

}  // namespace zelvor::rehearsal::reply
