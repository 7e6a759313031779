#include "ask/ask_fields.h"
#include "base/run_time_error.h"
#include "support/fuzz_input.h"

// Any lines are read, or end in an error at one of them; there is a field for each number then.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const QStringList lines = zelvor::test::fuzzLines(data, size);
    zelvor::AskState ask;
    int line = 0;
    try {
        readAskFields(lines, ask.ASK_FIELDS, line);
    } catch (const zelvor::RunTimeError&) {
        zelvor::test::require(line >= 1 && line <= lines.size() + 1);
    }
    zelvor::test::require(ask.ASK_FIELDS.size() >= zelvor::AskState::kSmallestTable);
    return 0;
}
