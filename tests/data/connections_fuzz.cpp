#include "base/run_time_error.h"
#include "data/connection_list.h"
#include "support/fuzz_input.h"

// What is found stands in the file, to the letter, or a number is too large; the operator chooses from as many lines as
// are not blank.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    QStringList lines = zelvor::test::fuzzLines(data, size);
    const zelvor::ConnectionList list(lines);
    const QString all = lines.join(u'\n');
    try {
        for (const int number : {-1, 0, 1, 2, 12})
            zelvor::test::require(all.contains(list.find(static_cast<qint16>(number))));
    } catch (const zelvor::RunTimeError&) {
    }
    lines.removeIf([](const QString& line) { return line.trimmed().isEmpty(); });
    zelvor::test::require(list.menuText().count(QStringLiteral("\r\n")) == lines.size());
    return 0;
}
