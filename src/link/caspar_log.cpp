#include "link/caspar_log.h"

#include <QRegularExpression>

#include "base/run_time_error.h"
#include "base/text_search.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

constexpr int kRuleLength = 36;

}  // namespace

QString generalDateText(const QDateTime& when, const QLocale& locale) {
    static const QRegularExpression kTimeZone(u"[(\\[]?\\bt+\\b[)\\]]?"_s);
    const QString timeFormat = locale.timeFormat(QLocale::LongFormat).remove(kTimeZone);
    return locale.toString(when, locale.dateFormat(QLocale::ShortFormat) + u' ' + timeFormat.trimmed());
}

QString oneLine(QString text) {
    static const QRegularExpression kLineBreaks(u"[\r\n]+"_s);
    if (holdsAny(text, u'\r', u'\n')) text.replace(kLineBreaks, u" "_s);
    return text;
}

void CasparLog::start(const QDateTime& now) {
    file_.close();
    file_.setFileName(folder_.resolve(folder_.modulesFile(u"CASPAROUT.TXT")));
    if (!file_.open(QIODevice::Append | QIODevice::Unbuffered))
        throwOpenError(file_.fileName(), file_.error(), Opening::ForWriting);
    write(QString(kRuleLength, u'-'));
    write(u"LOG start at "_s + generalDateText(now, QLocale::system()));
}

void CasparLog::stop(const QDateTime& now) {
    write(u"LOG stop at "_s + generalDateText(now, QLocale::system()));
    write(QString(kRuleLength, u'='));
    file_.close();
}

void CasparLog::write(const QString& line) {
    if (!file_.isOpen()) return;
    const QString end = u"\r\n"_s;
    const QByteArray bytes = files_.encode((inLine_ ? end : QString()) + oneLine(line) + end);
    const qint64 written = file_.write(bytes);
    if (written > 0) inLine_ = written < bytes.size();
    if (written != bytes.size()) throw RunTimeError(ErrorNumber::DiskFull, file_.fileName());
}

}  // namespace zelvor
