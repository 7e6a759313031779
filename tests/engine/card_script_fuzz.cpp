#include <QRegularExpression>

#include "support/fake_ports.h"
#include "support/fuzz_input.h"

using namespace zelvor;

// A card and, behind a form feed, the script that it includes: the run ends, with one error at most.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    // No file is written, and no loop made endless.
    static const QRegularExpression left(QStringLiteral("FILE|~@?RECORDCOUNT"));
    const QList<QByteArray> scripts = test::fuzzBytes(data, size).split('\f');
    for (const QByteArray& script : scripts)
        if (TextFiles().decode(script).contains(left)) return -1;

    test::EngineBench bench;
    bench.clock.whileWaiting = [&bench] { bench.clock.time = bench.clock.time.addYears(1); };
    bench.state.QUERY_RESULT = {2, 2, {Value(u"7"), Value(u"Maria"), Value(u"8"), Value(u"Eva|1")}};
    bench.state.variables.SetVar(u"@RECORDCOUNT", 2);
    int errors = 0;
    bench.trap.setReporter([&errors](const ErrorPlace&, const QString&) { ++errors; });
    bench.write(QStringLiteral("QRD_TT/part.inc"), scripts.value(1));
    bench.run(scripts.first());
    test::require(errors <= 1 || scripts.first().contains("SCANPROPOSED") || scripts.value(1).contains("SCANPROPOSED"));
    return 0;
}
