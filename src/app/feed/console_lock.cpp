#include "app_feed/console_lock.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace zelvor {

ConsoleLock::ConsoleLock(const QHostAddress& host, quint16 port)
    : file_(QDir::temp().filePath(u"zelvor-feed-"_s + host.toString() + u'-' + QString::number(port) + u".lock"_s)) {
    file_.setStaleLockTime(0);  // a game is long; one whose process has ended is found out all the same
}

bool ConsoleLock::take(QString& holder) {
    if (file_.tryLock()) return true;
    // Without a folder to lock in there is nobody to tell apart.
    if (file_.error() != QLockFile::LockFailedError) return true;
    qint64 process = 0;
    QString host;
    QString program;
    file_.getLockInfo(&process, &host, &program);
    holder = u"process "_s + QString::number(process);
    return false;
}

}  // namespace zelvor
