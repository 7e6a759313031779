#include <cmath>

#include "expr/elementary.h"
#include "expr/evaluation_table.h"

namespace zelvor::expr {

namespace {

double add(double a, double b) {
    return a + b;
}

double subtract(double a, double b) {
    return a - b;
}

double multiply(double a, double b) {
    return a * b;
}

// By 0 no finite number comes of it, which is the failure that it has to be.
double divide(double a, double b) {
    return a / b;
}

double power(double a, double b) {
    return b == 2 ? a * a : std::pow(a, b);
}

double square(double a, double /*unused*/) {
    return a * a;
}

double percent(double a, double /*unused*/) {
    return a / 100;
}

double negative(double a, double /*unused*/) {
    return -a;
}

double equal(double a, double b) {
    return a == b ? 1 : 0;
}

double less(double a, double b) {
    return a < b ? 1 : 0;
}

double greater(double a, double b) {
    return a > b ? 1 : 0;
}

double lessOrEqual(double a, double b) {
    return a <= b ? 1 : 0;
}

double greaterOrEqual(double a, double b) {
    return a >= b ? 1 : 0;
}

double notEqual(double a, double b) {
    return a != b ? 1 : 0;
}

// The call at a step's end is its last deed, which compilers make a jump of.
double goOn(const Step* step, EvaluationTable& table, double result) {
    *step->result = result;
    const Step* const next = step + 1;
    return next->run(next, table, result);
}

// Whether an operand that is no finite number leaves a result that is none either: a dividend does, a divisor may not.
template <double (*operate)(double, double)>
constexpr bool kShowsFirst = (operate == add) || (operate == subtract) || (operate == multiply) ||
                             (operate == divide) || (operate == square) || (operate == percent) ||
                             (operate == negative);
template <double (*operate)(double, double)>
constexpr bool kShowsSecond = kShowsFirst<operate> && (operate != divide);

// Which operand is the result of the step before: that one need not be read from its slot.
enum class Before { Neither, First, Second };

template <double (*operate)(double, double), Before is>
double runOperator(const Step* step, EvaluationTable& table, double before) {
    const double first = is == Before::First ? before : *step->first;
    const double second = is == Before::Second ? before : *step->second;
    if (!kShowsFirst<operate> && !std::isfinite(first)) return kFailed;
    if (!kShowsSecond<operate> && !std::isfinite(second)) return kFailed;
    return goOn(step, table, operate(first, second));
}

// Functions take finite numbers only.
double runUnary(const Step* step, EvaluationTable& table, double /*unused*/) {
    const double argument = *step->first;
    if (!std::isfinite(argument)) return kFailed;
    return goOn(step, table, step->unary(argument));
}

double runAngular(const Step* step, EvaluationTable& table, double /*unused*/) {
    const double argument = *step->first;
    if (!std::isfinite(argument)) return kFailed;
    return goOn(step, table, step->angular(argument, table.context.angle));
}

double runBinary(const Step* step, EvaluationTable& table, double /*unused*/) {
    const double first = *step->first;
    const double second = *step->second;
    if (!std::isfinite(first) || !std::isfinite(second)) return kFailed;
    return goOn(step, table, step->binary(first, second));
}

// Functions of more than two arguments, of any number, or with a need for more than their arguments.
double call(const Row& row, const Arguments& values, Context& context) {
    const auto& body = row.function->body;
    if (const auto* const variadic = std::get_if<Variadic>(&body)) return (*variadic)(values);
    if (const auto* const ternary = std::get_if<Ternary>(&body)) return (*ternary)(values[0], values[1], values[2]);
    if (const auto* const quaternary = std::get_if<Quaternary>(&body)) {
        return (*quaternary)(values[0], values[1], values[2], values[3]);
    }
    return std::get<Contextual>(body)(values, context);
}

double runCall(const Step* step, EvaluationTable& table, double /*unused*/) {
    const Row& row = *step->row;
    const Arguments values(table.slots.data(), table.arguments.data() + row.argumentsAt, row.argumentCount);
    for (std::size_t i = 0; i < values.size(); ++i) {
        if (!std::isfinite(values[i])) return kFailed;
    }
    return goOn(step, table, call(row, values, table.context));
}

double end(const Step* step, EvaluationTable& /*unused*/, double /*unused*/) {
    return *step->first;
}

using Runner = decltype(Step::run);

template <double (*compute)(double, double)>
Runner runnerOf(Before before) {
    switch (before) {
        case Before::First:
            return runOperator<compute, Before::First>;
        case Before::Second:
            return runOperator<compute, Before::Second>;
        case Before::Neither:
            break;
    }
    return runOperator<compute, Before::Neither>;
}

Runner runnerOf(Operation operation, Before before) {
    switch (operation) {
        case Operation::Add:
            return runnerOf<add>(before);
        case Operation::Subtract:
            return runnerOf<subtract>(before);
        case Operation::Multiply:
            return runnerOf<multiply>(before);
        case Operation::Divide:
            return runnerOf<divide>(before);
        case Operation::IntegerDivide:
            return runnerOf<integerQuotient>(before);
        case Operation::Power:
            return runnerOf<power>(before);
        case Operation::Percent:
            return runnerOf<percent>(before);
        case Operation::Negate:
            return runnerOf<negative>(before);
        case Operation::Equal:
            return runnerOf<equal>(before);
        case Operation::Less:
            return runnerOf<less>(before);
        case Operation::Greater:
            return runnerOf<greater>(before);
        case Operation::LessOrEqual:
            return runnerOf<lessOrEqual>(before);
        case Operation::GreaterOrEqual:
            return runnerOf<greaterOrEqual>(before);
        case Operation::NotEqual:
            return runnerOf<notEqual>(before);
        case Operation::Call:
            break;
    }
    return runCall;
}

Step stepOf(const Row& row, EvaluationTable& table) {
    Step step;
    step.row = &row;
    step.first = &table.slots[row.first];
    step.second = &table.slots[row.second];
    step.result = &table.slots[row.result];
    const double* const before = table.steps.empty() ? nullptr : table.steps.back().result;
    const auto place = step.first == before ? Before::First : step.second == before ? Before::Second : Before::Neither;
    const bool isSquare =
        row.operation == Operation::Power && row.second >= EvaluationTable::kFirstNumber && *step.second == 2;
    step.run = isSquare ? runnerOf<square>(place) : runnerOf(row.operation, place);
    if (row.operation != Operation::Call) return step;
    if (const auto* const unary = std::get_if<Unary>(&row.function->body)) {
        step.run = runUnary;
        step.unary = *unary;
    } else if (const auto* const angular = std::get_if<Angular>(&row.function->body)) {
        step.run = runAngular;
        step.angular = *angular;
    } else if (const auto* const binary = std::get_if<Binary>(&row.function->body)) {
        step.run = runBinary;
        step.binary = *binary;
    }
    return step;
}

}  // namespace

void makeSteps(EvaluationTable& table) {
    table.steps.clear();
    for (const Row& row : table.rows) table.steps.push_back(stepOf(row, table));
    Step& last = table.steps.emplace_back();
    last.run = end;
    last.first = &table.slots[table.value];
}

double evaluate(EvaluationTable& table) {
    const Step* const first = table.steps.data();
    return first->run(first, table, 0);
}

}  // namespace zelvor::expr
