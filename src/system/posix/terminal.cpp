#include "system/terminal.h"

#include <poll.h>
#include <termios.h>
#include <unistd.h>

#include <QSocketNotifier>
#include <algorithm>

namespace zelvor {

bool outputIsTerminal() {
    return isatty(STDOUT_FILENO) != 0;
}

bool inputIsReady(int milliseconds) {
    pollfd input{STDIN_FILENO, POLLIN, 0};
    return poll(&input, 1, milliseconds) != 0;
}

QByteArray readInput(qsizetype most) {
    QByteArray bytes(most, Qt::Uninitialized);
    bytes.truncate(std::max<ssize_t>(::read(STDIN_FILENO, bytes.data(), static_cast<size_t>(most)), 0));
    return bytes;
}

struct TerminalKeys::Terminal {
    termios before{};
    QSocketNotifier notifier{STDIN_FILENO, QSocketNotifier::Read};
};

TerminalKeys::TerminalKeys() {
    termios now{};
    // A program in the background would be stopped for reading the terminal's keys.
    if (tcgetattr(STDIN_FILENO, &now) != 0 || tcgetpgrp(STDIN_FILENO) != getpgrp()) return;
    terminal_ = std::make_unique<Terminal>();
    terminal_->before = now;
    // Ctrl+C comes as a key too, so that the terminal is given back before the program ends.
    now.c_lflag &= ~static_cast<tcflag_t>(ICANON | ECHO | ISIG);
    tcsetattr(STDIN_FILENO, TCSANOW, &now);
    connect(&terminal_->notifier, &QSocketNotifier::activated, this, &TerminalKeys::read);
}

TerminalKeys::~TerminalKeys() {
    if (terminal_) tcsetattr(STDIN_FILENO, TCSANOW, &terminal_->before);
}

void TerminalKeys::read() {
    constexpr char kEndOfInput = '\x04';
    char key = kEndOfInput;
    if (::read(STDIN_FILENO, &key, 1) != 1) terminal_->notifier.setEnabled(false);
    Q_EMIT pressed(key);
}

}  // namespace zelvor
