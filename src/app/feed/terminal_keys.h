#pragma once

#include <termios.h>

#include <QObject>
#include <QSocketNotifier>
#include <optional>

namespace zelvor {

// Single keys of the terminal on standard input, without Enter and unseen. Without a terminal there are none. Gives
// the terminal back as it was.
class TerminalKeys : public QObject {
    Q_OBJECT

 public:
    TerminalKeys();
    TerminalKeys(const TerminalKeys&) = delete;
    TerminalKeys& operator=(const TerminalKeys&) = delete;
    ~TerminalKeys() override;

    [[nodiscard]] bool available() const { return before_.has_value(); }

 Q_SIGNALS:
    // Ctrl+C arrives as '\x03' and the end of the input as '\x04'.
    void pressed(char key);

 private:
    void read();

    std::optional<termios> before_;
    std::optional<QSocketNotifier> notifier_;
};

}  // namespace zelvor
