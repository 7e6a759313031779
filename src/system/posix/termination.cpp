#include "system/termination.h"

#include <unistd.h>

#include <QCoreApplication>
#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdint>
#include <ctime>

namespace zelvor {

namespace {

// Who closes a terminal, or ends a group of processes, sends more than one signal: within this time they are one.
constexpr std::int64_t kOneWish = 500;  // milliseconds

using Handler = void (*)(int);

// The pipe that the handler, which may do little else, writes to.
std::array<int, 2> ends{-1, -1};
std::atomic<std::int64_t> wantedAt{0};  // steady milliseconds
static_assert(std::atomic<std::int64_t>::is_always_lock_free);

std::int64_t steadyMilliseconds() {
    timespec now{};
    clock_gettime(CLOCK_MONOTONIC, &now);
    return std::int64_t{now.tv_sec} * 1000 + now.tv_nsec / 1'000'000;
}

void onSignal(int number) {
    const int interrupted = errno;
    const std::int64_t now = steadyMilliseconds();
    if (std::int64_t first = 0; wantedAt.compare_exchange_strong(first, now)) {
        constexpr char kAny = 0;
        static_cast<void>(!write(ends[1], &kAny, 1));
    } else if (now - first >= kOneWish) {
        std::signal(number, SIG_DFL);
        std::raise(number);
    }
    errno = interrupted;
}

// Leaves alone what is handled otherwise: nohup, or a shell's "&", has the program ignore some.
void replaceHandler(Handler before, Handler handler) {
    for (const int number : {SIGHUP, SIGINT, SIGTERM}) {
        const Handler found = std::signal(number, handler);
        if (found != before) std::signal(number, found);
    }
}

}  // namespace

Termination::Termination() {
    if (pipe(ends.data()) != 0) return;  // the system has none left: the signals stay what they are
    wantedAt = 0;
    notifier_ = std::make_unique<QSocketNotifier>(ends[0], QSocketNotifier::Read);
    connect(notifier_.get(), &QSocketNotifier::activated, this, [this] {
        notifier_->setEnabled(false);
        Q_EMIT wanted();
        QCoreApplication::exit();  // not quit(), which ends the application's own loop alone
    });
    replaceHandler(SIG_DFL, onSignal);
}

Termination::~Termination() {
    if (!notifier_) return;
    replaceHandler(onSignal, SIG_DFL);
    notifier_.reset();
    for (const int end : ends) close(end);
}

}  // namespace zelvor
