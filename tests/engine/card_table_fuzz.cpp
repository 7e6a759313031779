#include "base/run_time_error.h"
#include "engine/card_table_reader.h"
#include "support/fuzz_input.h"

// Any lines are read, or end in an error at one of them.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const QStringList lines = zelvor::test::fuzzLines(data, size);
    zelvor::CardTable table;
    int line = 0;
    try {
        readCardTable(lines, table, line);
    } catch (const zelvor::RunTimeError&) {
        zelvor::test::require(line >= 1 && line <= lines.size() + 1);
    }
    return 0;
}
