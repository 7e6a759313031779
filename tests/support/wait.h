#pragma once

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QTimer>

namespace zelvor::test {

// Handles events until the condition holds; false when it does not within 30 s.
template <class Condition>
bool waitUntil(Condition&& holds) {
    const QDeadlineTimer deadline(30000);
    QTimer alarm;  // conditions that no event announces are looked at again
    alarm.start(20);
    bool held = holds();
    while (!held && !deadline.hasExpired()) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        held = holds();
    }
    return held;
}

}  // namespace zelvor::test
