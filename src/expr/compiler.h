#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "expr/error_table.h"
#include "expr/evaluation_table.h"
#include "expr/scanner.h"

namespace zelvor::expr {

struct CompileError {
    ErrorCode code = ErrorCode::None;
    // Byte of the formula, from 0.
    std::size_t position = 0;
    // The piece of the formula that the message names.
    std::string_view detail;
};

// Compiles formulas in one scan, by operator precedence with stacks of its own: no recursion, whatever the depth of
// the brackets. The stacks keep their storage, so that compiling another formula allocates next to nothing.
class Compiler {
 public:
    // Fills the table; on an error its contents are of no use. The values of variables are left for the caller to set.
    CompileError compile(std::string_view formula, NumberStyle style, EvaluationTable& table);

 private:
    enum class Kind : std::uint8_t { Operator, Bracket, Bar, Call };

    // An operator that waits for its right operand, or an opener that waits for its closer.
    struct Pending {
        Kind kind;
        Operation operation;
        const Function* function;
        std::int32_t priority;
        std::uint32_t position;
        std::uint32_t argumentCount;
    };

    struct Operand {
        std::uint32_t slot;
        // A group of degrees, minutes and seconds that has not become an angle of the current unit.
        bool degrees;
    };

    void scanOperand();
    void scanOperator();
    void finish();

    void takeNumber();
    void takeName();
    void takeVariable(std::string_view name);
    void open(Kind kind, std::size_t length);
    void openCall(const Function& function, std::string_view name, std::size_t bracket);
    void negate();
    void binary(Operation operation, int level, std::size_t length);
    void postfix(Operation operation, const Function* function);
    void separateArguments();
    void close();
    void closeBar();
    void operandMissing();

    [[nodiscard]] bool isBracketOpen() const;
    [[nodiscard]] bool isInsideDec() const;
    // Makes rows of the waiting operators of at least this priority, back to the last opener.
    void reduce(std::int32_t priority);
    void reduceToOpener();
    void endCall(Pending call);
    void emit(const Pending& operation, std::uint32_t argumentCount);
    void orderRows();

    // False with the error set when the table is full.
    bool reserveRow(std::size_t position);
    void fail(ErrorCode code, std::size_t position, std::string_view detail = {});
    [[nodiscard]] std::int32_t priority(int level) const { return 10 * depth_ + level; }
    [[nodiscard]] std::string_view rest() const { return formula_.substr(at_); }

    std::string_view formula_;
    NumberStyle style_;
    EvaluationTable* table_ = nullptr;
    std::size_t at_ = 0;
    std::int32_t depth_ = 0;
    std::size_t rowCount_ = 0;
    bool operandExpected_ = true;
    CompileError error_;
    std::vector<Pending> pending_;
    std::vector<Operand> operands_;
    std::vector<Row> orderedRows_;
    std::vector<std::uint32_t> newSlots_;
};

}  // namespace zelvor::expr
