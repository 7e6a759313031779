#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "expr/compiler.h"
#include "expr/dates.h"
#include "expr/evaluation_table.h"

namespace zelvor::expr {

// A formula, compiled once and evaluated as often as wanted. Nothing throws; after every member that can fail ErrorID
// tells whether it did. Variables are counted from 1, in the order in which the formula names them.
class clsFormula {
 public:
    explicit clsFormula(LocalClock clock = localDateTime);
    clsFormula(const clsFormula&) = delete;
    clsFormula& operator=(const clsFormula&) = delete;
    ~clsFormula() = default;

    // Parses and compiles a formula in UTF-8. False on an error; Eval then gives that error again.
    bool StoreExpression(std::string_view formula);
    [[nodiscard]] const std::string& Expression() const { return expression_; }

    [[nodiscard]] int VarTop() const;
    // Empty with error 2 for an index out of range.
    std::string VarName(int index);

    // Values of variables, by index or by name. Reading an unassigned one gives 0, an unknown one 0 with error 2.
    // A value that is no finite number leaves the variable unassigned.
    double VarValue(int index);
    void VarValue(int index, double value);
    double VarSymb(std::string_view name);
    void VarSymb(std::string_view name, double value);
    double Variable(int index) { return VarValue(index); }
    double Variable(std::string_view name) { return VarSymb(name); }
    void Variable(int index, double value) { VarValue(index, value); }
    void Variable(std::string_view name, double value) { VarSymb(name, value); }

    // "RAD", "DEG" or "GRAD", in any case; false and unchanged for another text. Holds from the next evaluation on.
    [[nodiscard]] std::string_view AngleUnit() const;
    bool AngleUnit(std::string_view unit);

    // On: variables lose their values with every StoreExpression. Off: a name that comes back has its value again.
    [[nodiscard]] bool OpAssignExplicit() const { return assignExplicit_; }
    void OpAssignExplicit(bool on) { assignExplicit_ = on; }
    // On: numbers may carry a unit symbol. Holds from the next StoreExpression on.
    [[nodiscard]] bool OpUnitConv() const { return style_.units; }
    void OpUnitConv(bool on) { style_.units = on; }
    // On: angles may be written as 10d30m15s. Holds from the next StoreExpression on.
    [[nodiscard]] bool OpDMSConv() const { return style_.degrees; }
    void OpDMSConv(bool on) { style_.degrees = on; }

    // The last error: its message (empty when none), its id (0 when none), and the character of the formula where it
    // stands, from 1 (0 when none).
    [[nodiscard]] const std::string& ErrorDescription() const { return errorDescription_; }
    [[nodiscard]] int ErrorID() const { return static_cast<int>(error_); }
    [[nodiscard]] int ErrorPos() const { return errorPosition_; }

    // The formula's value with the current values of its variables; 0 on an error.
    double Eval();
    // The same with the first variable set to x.
    double Eval1(double x);
    // The formula's value for each value of one variable, which is left at the last one. Stops at the first error: the
    // results are then those before it.
    std::vector<double> EvalMulti(int index, std::span<const double> values);
    std::vector<double> EvalMulti(std::string_view name, std::span<const double> values);

    // The evaluation table as text: a line of headings and a line for each operation, in the order of evaluation.
    [[nodiscard]] std::string ET_Dump() const;

    // What the last evaluation had to say beside its result; empty for nothing.
    [[nodiscard]] std::string_view Warning() const { return table_.context.warning; }

 private:
    struct NameHash {
        using is_transparent = void;
        std::size_t operator()(std::string_view name) const { return std::hash<std::string_view>{}(name); }
    };

    void keepValues();
    void restoreValues();
    bool isReady();
    double failEvaluation();
    bool isVariable(int index);
    int indexOf(std::string_view name) const;
    void clearError();
    void setError(ErrorCode code, std::size_t byte, std::initializer_list<std::string_view> details);
    void evaluationError(const Row& row);
    void notAssignedError();

    std::string expression_;
    EvaluationTable table_;
    Compiler compiler_;
    NumberStyle style_;
    bool assignExplicit_ = false;
    std::size_t unassigned_ = 0;
    std::unordered_map<std::string, double, NameHash, std::equal_to<>> keptValues_;

    CompileError storeError_{ErrorCode::SyntaxAtPosition, 0, {}};
    ErrorCode error_ = ErrorCode::None;
    int errorPosition_ = 0;
    std::string errorDescription_;
};

}  // namespace zelvor::expr
