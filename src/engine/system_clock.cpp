#include "engine/system_clock.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QTimer>

namespace zelvor {

QDateTime SystemClock::now() const {
    return QDateTime::currentDateTime();
}

bool SystemClock::turnEvents(int turns, qint64 longest) {
    QElapsedTimer timer;
    timer.start();
    for (int turn = 0; turn < turns && !closing_.hasBegun() && timer.elapsed() < longest; ++turn)
        QCoreApplication::processEvents();
    return !closing_.hasBegun();
}

bool SystemClock::waitBriefly() {
    constexpr int kLongestWait = 5;  // milliseconds
    QEventLoop loop;
    QTimer::singleShot(kLongestWait, &loop, &QEventLoop::quit);
    loop.processEvents(QEventLoop::WaitForMoreEvents);
    return !closing_.hasBegun();
}

}  // namespace zelvor
