#include "expr/cls_formula.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <random>
#include <span>

#include "plain/number.h"

namespace zelvor::expr {

namespace {

constexpr double kUnassigned = kFailed;

constexpr std::array<std::string_view, 3> kAngleUnits{"RAD", "DEG", "GRAD"};

constexpr std::array<std::string_view, 14> kSymbols{"+",   "-", "*", "/", "\\", "^",  "%",
                                                    "neg", "=", "<", ">", "<=", ">=", "<>"};

char upper(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

}  // namespace

std::string_view operationName(const Row& row) {
    return row.function != nullptr ? row.function->name : kSymbols[static_cast<std::size_t>(row.operation)];
}

bool isComparison(Operation operation) {
    return operation >= Operation::Equal && operation <= Operation::NotEqual;
}

clsFormula::clsFormula(LocalClock clock) {
    table_.context.clock = std::move(clock);
    std::random_device device;
    table_.context.randomState = (std::uint64_t{device()} << 32U) | device();
}

bool clsFormula::StoreExpression(std::string_view formula) {
    keepValues();
    clearError();
    table_.context.warning = {};
    expression_ = formula;
    storeError_ = compiler_.compile(expression_, style_, table_);
    if (storeError_.code != ErrorCode::None) {
        table_.rows.clear();
        table_.variableCount = 0;
        unassigned_ = 0;
        Eval();
        return false;
    }
    // What the formula before this one computed is none of its results.
    std::fill_n(table_.slots.begin() + EvaluationTable::kFirstResult, table_.rows.size(), kFailed);
    restoreValues();
    return true;
}

// Keeps what the formula before this one was given, for names that come back.
void clsFormula::keepValues() {
    for (std::size_t i = 0; i < table_.variableCount; ++i) {
        if (!std::isnan(table_.slots[i])) keptValues_.insert_or_assign(table_.variables[i].name, table_.slots[i]);
    }
}

void clsFormula::restoreValues() {
    unassigned_ = 0;
    for (std::size_t i = 0; i < table_.variableCount; ++i) {
        double value = kUnassigned;
        if (!assignExplicit_) {
            const auto kept = keptValues_.find(std::string_view(table_.variables[i].name));
            if (kept != keptValues_.end()) value = kept->second;
        }
        table_.slots[i] = value;
        if (std::isnan(value)) ++unassigned_;
    }
}

int clsFormula::VarTop() const {
    return static_cast<int>(table_.variableCount);
}

std::string clsFormula::VarName(int index) {
    return isVariable(index) ? table_.variables[static_cast<std::size_t>(index - 1)].name : std::string{};
}

double clsFormula::VarValue(int index) {
    if (!isVariable(index)) return 0;
    const double value = table_.slots[static_cast<std::size_t>(index - 1)];
    return std::isnan(value) ? 0 : value;
}

void clsFormula::VarValue(int index, double value) {
    if (!isVariable(index)) return;
    double& slot = table_.slots[static_cast<std::size_t>(index - 1)];
    if (std::isnan(slot)) --unassigned_;
    slot = std::isfinite(value) ? value : kUnassigned;
    if (std::isnan(slot)) ++unassigned_;
}

double clsFormula::VarSymb(std::string_view name) {
    return VarValue(indexOf(name));
}

void clsFormula::VarSymb(std::string_view name, double value) {
    VarValue(indexOf(name), value);
}

std::string_view clsFormula::AngleUnit() const {
    return kAngleUnits[static_cast<std::size_t>(table_.context.angle)];
}

bool clsFormula::AngleUnit(std::string_view unit) {
    const auto found = std::find_if(kAngleUnits.begin(), kAngleUnits.end(), [unit](std::string_view known) {
        return std::equal(known.begin(), known.end(), unit.begin(), unit.end(),
                          [](char a, char b) { return a == upper(b); });
    });
    if (found == kAngleUnits.end()) return false;
    table_.context.angle = static_cast<Angle>(found - kAngleUnits.begin());
    return true;
}

double clsFormula::Eval() {
    if (error_ != ErrorCode::None || storeError_.code != ErrorCode::None || unassigned_ > 0) [[unlikely]] {
        if (!isReady()) return 0;
    }
    table_.context.warning = {};
    const double value = evaluate(table_);
    if (!std::isfinite(value)) [[unlikely]] {
        return failEvaluation();
    }
    return value;
}

// Clears the last error, and sets the one that a formula not stored or a variable without a value is.
bool clsFormula::isReady() {
    clearError();
    table_.context.warning = {};
    if (storeError_.code != ErrorCode::None) {
        const std::string position = std::to_string(characterPosition(expression_, storeError_.position));
        if (storeError_.detail.empty()) {
            setError(storeError_.code, storeError_.position, {position});
        } else {
            setError(storeError_.code, storeError_.position, {storeError_.detail, position});
        }
        return false;
    }
    if (unassigned_ > 0) notAssignedError();
    return unassigned_ == 0;
}

// Says which row failed first. What was computed after it is none of the formula's results.
double clsFormula::failEvaluation() {
    const auto results = std::span(table_.slots).subspan(EvaluationTable::kFirstResult, table_.rows.size());
    const auto failed = std::ranges::find_if_not(results, [](double result) { return std::isfinite(result); });
    const auto row = static_cast<std::size_t>(failed - results.begin());
    evaluationError(table_.rows[row]);
    std::fill(failed, results.end(), kFailed);
    return 0;
}

double clsFormula::Eval1(double x) {
    if (table_.variableCount > 0) {
        if (unassigned_ == 0 && std::isfinite(x)) [[likely]] {
            table_.slots[0] = x;
        } else {
            VarValue(1, x);
        }
    }
    return Eval();
}

std::vector<double> clsFormula::EvalMulti(int index, std::span<const double> values) {
    std::vector<double> results;
    clearError();
    if (!isVariable(index)) return results;
    results.reserve(values.size());
    for (const double value : values) {
        VarValue(index, value);
        const double result = Eval();
        if (error_ != ErrorCode::None) break;
        results.push_back(result);
    }
    return results;
}

std::vector<double> clsFormula::EvalMulti(std::string_view name, std::span<const double> values) {
    return EvalMulti(indexOf(name), values);
}

std::string clsFormula::ET_Dump() const {
    return dumpTable(table_, expression_);
}

// False with error 2 for an index out of range.
bool clsFormula::isVariable(int index) {
    clearError();
    const bool found = index >= 1 && index <= VarTop();
    if (!found) setError(ErrorCode::VariableNotFound, 0, {});
    return found;
}

// 0 when the formula has no variable of that name.
int clsFormula::indexOf(std::string_view name) const {
    for (std::size_t i = 0; i < table_.variableCount; ++i) {
        if (table_.variables[i].name == name) return static_cast<int>(i) + 1;
    }
    return 0;
}

void clsFormula::clearError() {
    if (error_ == ErrorCode::None) return;
    error_ = ErrorCode::None;
    errorPosition_ = 0;
    errorDescription_.clear();
}

void clsFormula::setError(ErrorCode code, std::size_t byte, std::initializer_list<std::string_view> details) {
    error_ = code;
    // No place in the formula is to blame for a variable that a caller asks for.
    errorPosition_ = code == ErrorCode::VariableNotFound ? 0 : characterPosition(expression_, byte);
    errorDescription_ = errorMessage(code, details);
}

void clsFormula::evaluationError(const Row& row) {
    const Arguments values(table_.slots.data(), table_.arguments.data() + row.argumentsAt, row.argumentCount);
    const std::string_view name = operationName(row);
    const std::string position = std::to_string(characterPosition(expression_, row.position));
    if (row.argumentCount == 2) {
        const std::string first = plain::numberText(values[0]);
        const std::string second = plain::numberText(values[1]);
        if (row.function != nullptr) {
            return setError(ErrorCode::EvaluationTwoArguments, row.position, {name, first, second, position});
        }
        return setError(ErrorCode::EvaluationOperator, row.position, {first, name, second, position});
    }
    std::string list;
    for (std::size_t i = 0; i < values.size(); ++i) {
        if (i > 0) list += ", ";
        list += plain::numberText(values[i]);
    }
    const ErrorCode code =
        row.argumentCount == 1 ? ErrorCode::EvaluationOneArgument : ErrorCode::EvaluationManyArguments;
    setError(code, row.position, {name, list, position});
}

void clsFormula::notAssignedError() {
    for (std::size_t i = 0; i < table_.variableCount; ++i) {
        if (!std::isnan(table_.slots[i])) continue;
        return setError(ErrorCode::NotAssigned, table_.variables[i].position, {table_.variables[i].name});
    }
}

}  // namespace zelvor::expr
