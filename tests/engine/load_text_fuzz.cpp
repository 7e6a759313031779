#include "support/fake_ports.h"
#include "support/fuzz_input.h"

using namespace zelvor;

// A text table of any bytes is read, every line of it that is no remark, or one error says why not.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    static auto* const bench = new test::EngineBench;
    bench->operatorDesk.shown.clear();
    bench->state.variables.clear();
    bench->state.variables.SetVar(u"@LANGUAGE", QStringLiteral("TT"));
    bench->write(QStringLiteral("table.txt"), test::fuzzBytes(data, size));
    bench->run("LOADTXT~MODULES/table.txt;T\r\nLOADTXTLINE~MODULES/table.txt;L\r\n");
    QStringList lines = test::fuzzLines(data, size);
    lines.removeIf([](const QString& line) { return line.startsWith(u'#'); });
    test::require(bench->operatorDesk.shown.size() <= 1);
    test::require(bench->state.variables.text(u"@TEXTLINES") == QString::number(lines.size()));
    return 0;
}
