#include "system/terminal.h"

#include <cstdio>

namespace zelvor {

bool outputIsTerminal() {
    return false;
}

bool inputIsReady(int) {
    return false;
}

QByteArray readInput(qsizetype) {
    const int character = std::getchar();
    return character == EOF ? QByteArray() : QByteArray(1, static_cast<char>(character));
}

struct TerminalKeys::Terminal {};

TerminalKeys::TerminalKeys() = default;

TerminalKeys::~TerminalKeys() = default;

void TerminalKeys::read() {}

}  // namespace zelvor
