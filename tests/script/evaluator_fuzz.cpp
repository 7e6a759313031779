#include <QString>

#include "base/run_time_error.h"
#include "script/evaluator.h"

// Any text evaluates or ends in a run-time error whose position lies in the text or right behind it.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const QString expression = QString::fromUtf8(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    static const zelvor::script::Evaluator evaluator([] { return QDateTime(QDate(2026, 11, 21), QTime(20, 31, 7)); },
                                                     [] { return 0.25; });
    try {
        static_cast<void>(evaluator.evaluate(expression).text());
    } catch (const zelvor::RunTimeError& error) {
        if (error.position() < 1 || error.position() > expression.size() + 1) __builtin_trap();
    }
    return 0;
}
