#include "command_line/termination.h"

#include <sys/signalfd.h>
#include <unistd.h>

#include <QCoreApplication>
#include <csignal>

namespace zelvor {

namespace {

int openSignals() {
    sigset_t signals;
    sigemptyset(&signals);
    sigaddset(&signals, SIGINT);
    sigaddset(&signals, SIGTERM);
    sigprocmask(SIG_BLOCK, &signals, nullptr);
    return signalfd(-1, &signals, SFD_CLOEXEC);
}

}  // namespace

Termination::Termination() : descriptor_(openSignals()), notifier_(descriptor_, QSocketNotifier::Read) {
    connect(&notifier_, &QSocketNotifier::activated, this, [this] {
        notifier_.setEnabled(false);
        QCoreApplication::exit();  // not quit(), which ends the application's own loop alone
    });
}

Termination::~Termination() {
    notifier_.setEnabled(false);
    close(descriptor_);
}

}  // namespace zelvor
