#include "app_feed/terminal_keys.h"

#include <unistd.h>

namespace zelvor {

TerminalKeys::TerminalKeys() {
    termios now{};
    // A program in the background would be stopped for reading the terminal's keys.
    if (tcgetattr(STDIN_FILENO, &now) != 0 || tcgetpgrp(STDIN_FILENO) != getpgrp()) return;
    before_ = now;
    // Ctrl+C comes as a key too, so that the terminal is given back before the program ends.
    now.c_lflag &= ~static_cast<tcflag_t>(ICANON | ECHO | ISIG);
    tcsetattr(STDIN_FILENO, TCSANOW, &now);
    notifier_.emplace(STDIN_FILENO, QSocketNotifier::Read);
    connect(&*notifier_, &QSocketNotifier::activated, this, &TerminalKeys::read);
}

TerminalKeys::~TerminalKeys() {
    if (before_) tcsetattr(STDIN_FILENO, TCSANOW, &*before_);
}

void TerminalKeys::read() {
    constexpr char kEndOfInput = '\x04';
    char key = kEndOfInput;
    if (::read(STDIN_FILENO, &key, 1) != 1) notifier_->setEnabled(false);
    Q_EMIT pressed(key);
}

}  // namespace zelvor
