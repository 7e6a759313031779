#include "base/error_trap.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>

#include "base/translate.h"

using namespace Qt::StringLiterals;

namespace zelvor {

QString errorMessage(const ErrorPlace& place, int number, const QString& text) {
    return u"Error %1\r\n"_s.arg(number) + text + u"\r\nLocation: ZELVOR_BASKET."_s + place.procedure + u"\r\nLine "_s +
           QString::number(place.line);
}

QString errorTitle(const ErrorPlace& place) {
    const ScriptPlace& at = place.asker.at;
    return at.card.isEmpty() ? QString() : translate("base", "Error in %1").arg(at.text());
}

QString errorLogPath(const QString& executablePath, const QString& appFolder) {
    const QFileInfo executable(executablePath);
    const QString name = u'/' + executable.completeBaseName() + u".log"_s;
    const QString beside = executable.absolutePath() + name;
    const bool writable =
        QFileInfo::exists(beside) ? QFileInfo(beside).isWritable() : QFileInfo(executable.absolutePath()).isWritable();
    return writable ? beside : appFolder + name;
}

bool ErrorTrap::writtenJustNow(const QString& fault) {
    constexpr qint64 kPause = 1000;  // milliseconds
    // A warning may hold what changes each time, a clock's formula: they would gather for the whole evening.
    std::erase_if(justWritten_, [](const auto& written) { return written.second.hasExpired(); });
    return !justWritten_.try_emplace(fault, kPause).second;
}

void ErrorTrap::write(const ErrorPlace& place, const QString& kind, const QString& text) {
    QFile log(logPath_);
    if (!log.open(QIODevice::Append)) return;
    QString oneLine = text;
    oneLine.replace(u'\r', u' ').replace(u'\n', u' ');
    const ScriptPlace& at = place.asker.at;
    log.write(QStringList{QDateTime::currentDateTime().toString(u"yyyy-MM-dd HH:mm:ss.zzz"_s), place.procedure, at.card,
                          at.line > 0 ? at.lineText() : u"line %1"_s.arg(place.line), kind, oneLine}
                  .join(u'\t')
                  .toUtf8() +
              '\n');
}

bool ErrorTrap::warn(const ErrorPlace& place, const QString& text) noexcept {
    try {
        if (writtenJustNow(place.asker.at.card + u' ' + text)) return false;
        write(place, u"warning"_s, text);
        if (warned_) warned_(text);
    } catch (const std::exception& error) {
        qCritical("error trap: %s", error.what());
    }
    return true;
}

void ErrorTrap::handle(const ErrorPlace& place, Tell tell, int number, const QString& text) noexcept {
    try {
        if (tell == Tell::LogOnly && writtenJustNow(place.procedure + u' ' + QString::number(number))) return;
        write(place, u"error %1"_s.arg(number), text);
        if (tell == Tell::Operator && reporter_) reporter_(place, errorMessage(place, number, text));
    } catch (const std::exception& error) {
        qCritical("error trap: %s", error.what());
    }
}

}  // namespace zelvor
