#include "command_line/termination.h"

#include <unistd.h>

#include <QCoreApplication>
#include <array>
#include <cerrno>
#include <csignal>

namespace zelvor {

namespace {

// The pipe's end that the handler, which may do little else, writes to.
volatile std::sig_atomic_t writingEnd = -1;

void onSignal(int) {
    const int interrupted = errno;
    constexpr char kAny = 0;
    static_cast<void>(!write(writingEnd, &kAny, 1));
    errno = interrupted;
}

void handleSignals(void (*handler)(int)) {
    std::signal(SIGINT, handler);
    std::signal(SIGTERM, handler);
}

// The end to read; -1 where the system has no pipe left, and the signals stay what they are.
int openPipe() {
    std::array<int, 2> ends{-1, -1};
    if (pipe(ends.data()) != 0) return -1;
    writingEnd = ends[1];
    handleSignals(onSignal);
    return ends[0];
}

}  // namespace

Termination::Termination() : readingEnd_(openPipe()), notifier_(readingEnd_, QSocketNotifier::Read) {
    connect(&notifier_, &QSocketNotifier::activated, this, [this] {
        notifier_.setEnabled(false);
        QCoreApplication::exit();  // not quit(), which ends the application's own loop alone
    });
}

Termination::~Termination() {
    notifier_.setEnabled(false);
    handleSignals(SIG_DFL);
    close(readingEnd_);
    close(writingEnd);
}

}  // namespace zelvor
