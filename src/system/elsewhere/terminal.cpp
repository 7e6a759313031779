#include "system/terminal.h"

namespace zelvor {

bool outputIsTerminal() {
    return false;
}

bool inputIsReady(int) {
    return false;
}

struct TerminalKeys::Terminal {};

TerminalKeys::TerminalKeys() = default;

TerminalKeys::~TerminalKeys() = default;

void TerminalKeys::read() {}

}  // namespace zelvor
