#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "expr/function_table.h"

namespace zelvor::expr {

inline constexpr std::size_t kMaxVariables = 100;
inline constexpr std::size_t kMaxRows = 1000;

enum class Operation : std::uint8_t {
    Add,
    Subtract,
    Multiply,
    Divide,
    IntegerDivide,
    Power,
    Percent,
    Negate,
    Equal,
    Less,
    Greater,
    LessOrEqual,
    GreaterOrEqual,
    NotEqual,
    Call,
};

// One operation of a compiled formula. Arguments and result are indexes into the table's slots.
struct Row {
    Operation operation = Operation::Add;
    // Set for calls only.
    const Function* function = nullptr;
    std::uint32_t first = 0;
    std::uint32_t second = 0;
    std::uint32_t result = 0;
    // Where its arguments stand in EvaluationTable::arguments, and how many there are.
    std::uint32_t argumentsAt = 0;
    std::uint32_t argumentCount = 0;
    // Ten times the bracket depth plus the operator's level.
    std::int32_t priority = 0;
    // Byte of the formula where it stands, from 0.
    std::uint32_t position = 0;
};

struct EvaluationTable;

// A row as it is evaluated: computes its result and goes on with the step behind it; `before` is the result of the step
// before. Gives the formula's value. A result that is no finite number makes that of each row that takes it none
// either, or ends the evaluation there, so that not each has to be looked at.
struct Step {
    double (*run)(const Step* step, EvaluationTable& table, double before) = nullptr;
    // The function of a call, by its shape; the row where it is none of these.
    union {
        const Row* row = nullptr;
        Unary unary;
        Angular angular;
        Binary binary;
    };
    // Slots.
    const double* first = nullptr;
    const double* second = nullptr;
    double* result = nullptr;
};

struct Variable {
    std::string name;
    // Byte of the formula where it first appears, from 0.
    std::uint32_t position = 0;
};

// A compiled formula: rows in their order of evaluation over one array of slots, which holds the variables, the rows'
// results and the numbers of the formula, in this order.
struct EvaluationTable {
    static constexpr std::uint32_t kFirstResult = kMaxVariables;
    static constexpr std::uint32_t kFirstNumber = kFirstResult + kMaxRows;

    std::vector<double> slots = std::vector<double>(kFirstNumber);
    std::vector<Row> rows;
    // One a row, in the same order, and the formula's end.
    std::vector<Step> steps;
    std::vector<std::uint32_t> arguments;
    // Kept longer than `variableCount`, so that names find their storage again.
    std::vector<Variable> variables;
    std::size_t variableCount = 0;
    // The slot of the formula's value.
    std::uint32_t value = 0;
    Context context;
};

// How an operation reads in messages and in the dump: its symbol, or its function's name.
std::string_view operationName(const Row& row);

// Makes the steps of the rows, which stay where they are from then on, as the slots do.
void makeSteps(EvaluationTable& table);

// The formula's value; no finite number when a row failed, whose slot is then the first result that is none.
double evaluate(EvaluationTable& table);

bool isComparison(Operation operation);

// The table as text: a heading line and a line for each row.
std::string dumpTable(const EvaluationTable& table, std::string_view formula);

// The character of the UTF-8 text that starts at or before the byte, from 1.
int characterPosition(std::string_view text, std::size_t byte);

}  // namespace zelvor::expr
