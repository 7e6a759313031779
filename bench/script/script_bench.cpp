// How long a script expression takes, read and computed. A short one should take less than 2 microseconds.

#include <benchmark/benchmark.h>

#include <array>

#include "script/evaluator.h"

namespace {

constexpr std::array kExpressions{
    "3>2",
    "78-74",
    "7 mod 4",
    "mid('qwerty',1,3)='qwe'",
    "(12 + 3*4) / 2 >= 10 And Not 5 = 6",
    "Split(\"a,b\", \",\")(1)",
    "IIf(Len('Athens') > 5, UCase(Left('Athens', 3)), 'Athens')",
    "Format(1234, '0:00')",
    "DateDiff('d', #2026-11-21#, #2026-12-25#)",
};

void evaluateExpression(benchmark::State& state) {
    const QString expression = QString::fromUtf8(kExpressions.at(static_cast<size_t>(state.range(0))));
    state.SetLabel(expression.toStdString());
    const zelvor::script::Evaluator evaluator;
    for (auto step : state) {
        static_cast<void>(step);
        benchmark::DoNotOptimize(evaluator.evaluate(expression));
    }
}
BENCHMARK(evaluateExpression)->DenseRange(0, kExpressions.size() - 1);

}  // namespace
