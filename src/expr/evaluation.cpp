#include <cmath>

#include "expr/elementary.h"
#include "expr/evaluation_table.h"

namespace zelvor::expr {

// What the steps of one evaluation share.
struct Evaluation {
    const std::uint32_t* arguments;
    std::uint32_t value;
    Context& context;
};

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
double goOn(const Step* step, double* slots, const Evaluation& evaluation, double spoilt, double result) {
    slots[step->result] = result;
    const Step* const next = step + 1;
    return next->run(next, slots, evaluation, spoilt + (result - result));
}

template <double (*compute)(double, double)>
double runOperator(const Step* step, double* slots, const Evaluation& evaluation, double spoilt) {
    return goOn(step, slots, evaluation, spoilt, compute(slots[step->first], slots[step->second]));
}

// Functions take finite numbers only, so that what is spoilt ends before them.
double runUnary(const Step* step, double* slots, const Evaluation& evaluation, double spoilt) {
    if (std::isnan(spoilt)) return kFailed;
    return goOn(step, slots, evaluation, spoilt, step->unary(slots[step->first]));
}

double runAngular(const Step* step, double* slots, const Evaluation& evaluation, double spoilt) {
    if (std::isnan(spoilt)) return kFailed;
    return goOn(step, slots, evaluation, spoilt, step->angular(slots[step->first], evaluation.context.angle));
}

double runBinary(const Step* step, double* slots, const Evaluation& evaluation, double spoilt) {
    if (std::isnan(spoilt)) return kFailed;
    return goOn(step, slots, evaluation, spoilt, step->binary(slots[step->first], slots[step->second]));
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

double runCall(const Step* step, double* slots, const Evaluation& evaluation, double spoilt) {
    if (std::isnan(spoilt)) return kFailed;
    const Row& row = *step->row;
    const Arguments values(slots, evaluation.arguments + row.argumentsAt, row.argumentCount);
    return goOn(step, slots, evaluation, spoilt, call(row, values, evaluation.context));
}

double end(const Step* /*unused*/, double* slots, const Evaluation& evaluation, double spoilt) {
    return std::isnan(spoilt) ? kFailed : slots[evaluation.value];
}

using Runner = decltype(Step::run);

Runner runnerOf(Operation operation) {
    switch (operation) {
        case Operation::Add:
            return runOperator<add>;
        case Operation::Subtract:
            return runOperator<subtract>;
        case Operation::Multiply:
            return runOperator<multiply>;
        case Operation::Divide:
            return runOperator<divide>;
        case Operation::IntegerDivide:
            return runOperator<integerQuotient>;
        case Operation::Power:
            return runOperator<power>;
        case Operation::Percent:
            return runOperator<percent>;
        case Operation::Negate:
            return runOperator<negative>;
        case Operation::Equal:
            return runOperator<equal>;
        case Operation::Less:
            return runOperator<less>;
        case Operation::Greater:
            return runOperator<greater>;
        case Operation::LessOrEqual:
            return runOperator<lessOrEqual>;
        case Operation::GreaterOrEqual:
            return runOperator<greaterOrEqual>;
        case Operation::NotEqual:
            return runOperator<notEqual>;
        case Operation::Call:
            break;
    }
    return runCall;
}

Step stepOf(const Row& row) {
    Step step;
    step.run = runnerOf(row.operation);
    step.row = &row;
    step.first = row.first;
    step.second = row.second;
    step.result = row.result;
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
    for (const Row& row : table.rows) table.steps.push_back(stepOf(row));
    table.steps.emplace_back().run = end;
}

double evaluate(EvaluationTable& table, Context& context) {
    const Step* const first = table.steps.data();
    return first->run(first, table.slots.data(), {table.arguments.data(), table.value, context}, 0);
}

}  // namespace zelvor::expr
