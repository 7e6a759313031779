#include "engine/system_clock.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QTimer>

namespace zelvor {

QDateTime SystemClock::now() const {
    return QDateTime::currentDateTime();
}

bool SystemClock::turnEvents(int turns) {
    for (int turn = 0; turn < turns && !state_.closing; ++turn) QCoreApplication::processEvents();
    return !state_.closing;
}

bool SystemClock::waitBriefly() {
    constexpr int kLongestWait = 5;  // milliseconds
    QEventLoop loop;
    QTimer::singleShot(kLongestWait, &loop, &QEventLoop::quit);
    loop.processEvents(QEventLoop::WaitForMoreEvents);
    return !state_.closing;
}

}  // namespace zelvor
