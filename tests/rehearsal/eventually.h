#pragma once

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QThread>

namespace zelvor::rehearsal {

// Handles events until CONDITION holds; false when that takes longer than any machine should need.
template <typename Condition>
bool eventually(const Condition& condition) {
    const QDeadlineTimer deadline(30000);
    while (!condition()) {
        if (deadline.hasExpired()) {
            return false;
        }
        QCoreApplication::processEvents();
        QThread::usleep(500);
    }
    return true;
}

}  // namespace zelvor::rehearsal
