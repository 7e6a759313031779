// Storing and evaluating formulas, side by side with muParser. Prints the ratios after the measurements.

#include <benchmark/benchmark.h>
#include <muParser.h>

#include <cstdio>
#include <map>
#include <string>

#include "expr/cls_formula.h"

namespace {

using zelvor::expr::clsFormula;

// The same formula of ten operators and two functions in the two spellings of the square root.
constexpr const char* kOurs = "2*x+sin(y)*3-x^2/(1+y)+sqr(x*y)-4*x*y";
constexpr const char* kTheirs = "2*x+sin(y)*3-x^2/(1+y)+sqrt(x*y)-4*x*y";

void evaluateOurs(benchmark::State& state) {
    clsFormula formula;
    formula.StoreExpression(kOurs);
    formula.VarSymb("y", 2.5);
    double x = 1.5;
    for (auto _ : state) {
        x += 1e-6;
        benchmark::DoNotOptimize(formula.Eval1(x));
    }
}

void evaluateTheirs(benchmark::State& state) {
    mu::Parser parser;
    double x = 1.5;
    double y = 2.5;
    parser.DefineVar("x", &x);
    parser.DefineVar("y", &y);
    parser.SetExpr(kTheirs);
    parser.Eval();
    for (auto _ : state) {
        x += 1e-6;
        benchmark::DoNotOptimize(parser.Eval());
    }
}

// muParser compiles at the first evaluation, so storing is measured with one evaluation on both sides.
void storeOurs(benchmark::State& state) {
    clsFormula formula;
    for (auto _ : state) {
        formula.StoreExpression(kOurs);
        formula.VarValue(1, 1.5);
        formula.VarValue(2, 2.5);
        benchmark::DoNotOptimize(formula.Eval());
    }
}

void storeTheirs(benchmark::State& state) {
    mu::Parser parser;
    double x = 1.5;
    double y = 2.5;
    parser.DefineVar("x", &x);
    parser.DefineVar("y", &y);
    for (auto _ : state) {
        parser.SetExpr(kTheirs);
        benchmark::DoNotOptimize(parser.Eval());
    }
}

void storeShortOurs(benchmark::State& state) {
    clsFormula formula;
    for (auto _ : state) benchmark::DoNotOptimize(formula.StoreExpression("17*2"));
}

BENCHMARK(evaluateOurs);
BENCHMARK(evaluateTheirs);
BENCHMARK(storeOurs);
BENCHMARK(storeTheirs);
BENCHMARK(storeShortOurs);

class RatioReporter : public benchmark::ConsoleReporter {
 public:
    void ReportRuns(const std::vector<Run>& runs) override {
        for (const Run& run : runs) nanoseconds_[run.benchmark_name()] = run.GetAdjustedCPUTime();
        ConsoleReporter::ReportRuns(runs);
    }

    void printRatios() const {
        printRatio("evaluate", "evaluateTheirs", "evaluateOurs");
        printRatio("store", "storeTheirs", "storeOurs");
    }

 private:
    void printRatio(const char* what, const char* theirs, const char* ours) const {
        const auto dividend = nanoseconds_.find(theirs);
        const auto divisor = nanoseconds_.find(ours);
        if (dividend == nanoseconds_.end() || divisor == nanoseconds_.end()) return;
        std::printf("%s: %.2f times as fast as muParser\n", what, dividend->second / divisor->second);
    }

    std::map<std::string, double> nanoseconds_;
};

}  // namespace

int main(int argc, char* argv[]) {
    benchmark::Initialize(&argc, argv);
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    reporter.printRatios();
}
