#pragma once

#include <QByteArray>
#include <QObject>
#include <memory>

namespace zelvor {

// Whether somebody reads the output at a terminal; false where that is not known.
[[nodiscard]] bool outputIsTerminal();

// Whether the standard input has something to read within the time, or has ended; false where that is not known.
[[nodiscard]] bool inputIsReady(int milliseconds);

// What the standard input has of at most so many bytes, once it has any; empty at its end.
[[nodiscard]] QByteArray readInput(qsizetype most);

// Single keys of the terminal on standard input, without Enter and unseen. Without a terminal there are none. Gives
// the terminal back as it was.
class TerminalKeys : public QObject {
    Q_OBJECT

 public:
    TerminalKeys();
    TerminalKeys(const TerminalKeys&) = delete;
    TerminalKeys& operator=(const TerminalKeys&) = delete;
    ~TerminalKeys() override;

    [[nodiscard]] bool available() const { return terminal_ != nullptr; }

 Q_SIGNALS:
    // Ctrl+C arrives as '\x03' and the end of the input as '\x04'.
    void pressed(char key);

 private:
    struct Terminal;

    void read();

    std::unique_ptr<Terminal> terminal_;
};

}  // namespace zelvor
