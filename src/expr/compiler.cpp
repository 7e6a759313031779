#include "expr/compiler.h"

#include <algorithm>
#include <limits>

#include "expr/constants.h"

namespace zelvor::expr {

namespace {

// Own levels of the operators, 0 to 9. Functions and bars share the highest with the postfix operators: the one that
// stands further left is evaluated first.
constexpr int kComparisonLevel = 1;
constexpr int kSumLevel = 2;
constexpr int kProductLevel = 3;
constexpr int kNegateLevel = 4;
constexpr int kPowerLevel = 5;
// A minus sign behind "^" belongs to the exponent.
constexpr int kNegateExponentLevel = 6;
constexpr int kHighestLevel = 9;

bool isOpener(char c) {
    return c == '(' || c == '[' || c == '{';
}

bool isCloser(char c) {
    return c == ')' || c == ']' || c == '}';
}

struct Comparison {
    Operation operation;
    std::size_t length;
};

Comparison scanComparison(std::string_view rest) {
    const char first = rest[0];
    const char second = rest.size() > 1 ? rest[1] : ' ';
    if ((first == '<' && second == '=') || (first == '=' && second == '<')) return {Operation::LessOrEqual, 2};
    if ((first == '>' && second == '=') || (first == '=' && second == '>')) return {Operation::GreaterOrEqual, 2};
    if (first == '<' && second == '>') return {Operation::NotEqual, 2};
    if (first == '<') return {Operation::Less, 1};
    if (first == '>') return {Operation::Greater, 1};
    return {Operation::Equal, 1};
}

}  // namespace

CompileError Compiler::compile(std::string_view formula, NumberStyle style, EvaluationTable& table) {
    formula_ = formula;
    style_ = style;
    table_ = &table;
    at_ = 0;
    depth_ = 0;
    rowCount_ = 0;
    operandExpected_ = true;
    error_ = {};
    pending_.clear();
    operands_.clear();
    table.slots.resize(EvaluationTable::kFirstNumber);
    table.rows.clear();
    table.arguments.clear();
    table.variableCount = 0;

    while (error_.code == ErrorCode::None) {
        while (at_ < formula_.size() && isBlank(formula_[at_])) ++at_;
        if (at_ == formula_.size()) break;
        if (operandExpected_) {
            scanOperand();
        } else {
            scanOperator();
        }
    }
    if (error_.code == ErrorCode::None) finish();
    return error_;
}

void Compiler::scanOperand() {
    const char c = formula_[at_];
    if (startsNumber(rest())) {
        takeNumber();
    } else if (startsName(c)) {
        takeName();
    } else if (isOpener(c)) {
        open(Kind::Bracket, 1);
    } else if (c == '|') {
        if (reserveRow(at_)) open(Kind::Bar, 1);
    } else if (c == '-') {
        negate();
    } else if (c == '+') {
        ++at_;
    } else {
        operandMissing();
    }
}

void Compiler::scanOperator() {
    const char c = formula_[at_];
    if (isCloser(c)) return close();
    switch (c) {
        case '+':
            return binary(Operation::Add, kSumLevel, 1);
        case '-':
            return binary(Operation::Subtract, kSumLevel, 1);
        case '*':
            return binary(Operation::Multiply, kProductLevel, 1);
        case '/':
            return binary(Operation::Divide, kProductLevel, 1);
        case '\\':
            return binary(Operation::IntegerDivide, kProductLevel, 1);
        case '^':
            return binary(Operation::Power, kPowerLevel, 1);
        case '<':
        case '>':
        case '=': {
            const auto [operation, length] = scanComparison(rest());
            return binary(operation, kComparisonLevel, length);
        }
        case '%':
            return postfix(Operation::Percent, nullptr);
        case '!':
            return postfix(Operation::Call, &factorialFunction());
        case '|':
            return closeBar();
        case kArgumentSeparator:
            return separateArguments();
        default:
            fail(ErrorCode::SyntaxAtPosition, at_);
    }
}

void Compiler::finish() {
    const auto opener = std::ranges::find_if(pending_.rbegin(), pending_.rend(),
                                             [](const Pending& p) { return p.kind != Kind::Operator; });
    if (opener != pending_.rend()) {
        return fail(opener->kind == Kind::Bar ? ErrorCode::BarsMismatch : ErrorCode::NotEnoughClosers,
                    opener->position);
    }
    if (operandExpected_) return operandMissing();
    reduceToOpener();
    table_->value = operands_.back().slot;
    orderRows();
    makeSteps(*table_);
}

void Compiler::takeNumber() {
    const ScannedNumber number = scanNumber(rest(), style_);
    if (number.error != ErrorCode::None) {
        std::string_view detail = rest().substr(0, number.length);
        if (number.error == ErrorCode::UnknownConstant) detail = scanName(rest().substr(number.length));
        return fail(number.error, at_, detail);
    }
    const std::size_t position = at_;
    const bool group = number.degrees && isInsideDec();
    operands_.push_back({static_cast<std::uint32_t>(table_->slots.size()), group});
    table_->slots.push_back(number.value);
    at_ += number.length;
    operandExpected_ = false;
    if (number.degrees && !group && reserveRow(position)) {
        emit({Kind::Call, Operation::Call, &degreesFunction(), priority(kHighestLevel),
              static_cast<std::uint32_t>(position), 1},
             1);
    }
    // The implicit product: no "*" between a number and one of these letters.
    if (at_ < formula_.size() && std::string_view("xyzXYZ").find(formula_[at_]) != std::string_view::npos) {
        binary(Operation::Multiply, kProductLevel, 0);
    }
}

void Compiler::takeName() {
    const std::string_view name = scanName(rest());
    std::size_t next = at_ + name.size();
    while (next < formula_.size() && isBlank(formula_[next])) ++next;
    const bool called = next < formula_.size() && isOpener(formula_[next]);
    const Function* const function = findFunction(name);
    if (called) {
        if (function == nullptr) return fail(ErrorCode::UnknownFunction, at_, name);
        return openCall(*function, name, next);
    }
    if (const Constant* const constant = findConstant(name)) {
        operands_.push_back({static_cast<std::uint32_t>(table_->slots.size()), false});
        table_->slots.push_back(constant->value);
    } else if (const Function* const moment = findMoment(name)) {
        if (!reserveRow(at_)) return;
        emit({Kind::Call, Operation::Call, moment, priority(kHighestLevel), static_cast<std::uint32_t>(at_), 0}, 0);
    } else if (function != nullptr) {
        return fail(ErrorCode::FunctionMissing, at_, name);
    } else {
        takeVariable(name);
    }
    at_ += name.size();
    operandExpected_ = false;
}

void Compiler::takeVariable(std::string_view name) {
    auto& variables = table_->variables;
    std::size_t& count = table_->variableCount;
    std::size_t index = 0;
    while (index < count && variables[index].name != name) ++index;
    if (index == count) {
        if (count == kMaxVariables) return fail(ErrorCode::TooManyVariables, at_);
        if (count == variables.size()) variables.emplace_back();
        variables[count].name = name;
        variables[count].position = static_cast<std::uint32_t>(at_);
        ++count;
    }
    operands_.push_back({static_cast<std::uint32_t>(index), false});
}

void Compiler::open(Kind kind, std::size_t length) {
    pending_.push_back({kind, Operation::Call, kind == Kind::Bar ? &absoluteValue() : nullptr, priority(kHighestLevel),
                        static_cast<std::uint32_t>(at_), 1});
    ++depth_;
    at_ += length;
}

void Compiler::openCall(const Function& function, std::string_view name, std::size_t bracket) {
    if (!reserveRow(at_)) return;
    pending_.push_back({Kind::Call, Operation::Call, &function, priority(kHighestLevel),
                        static_cast<std::uint32_t>(name.data() - formula_.data()), 1});
    ++depth_;
    at_ = bracket + 1;
}

void Compiler::negate() {
    if (!reserveRow(at_)) return;
    int level = kNegateLevel;
    if (!pending_.empty() && pending_.back().kind == Kind::Operator) {
        // The sign of an exponent, and every sign behind it.
        const int before = pending_.back().priority - priority(0);
        if (before == kPowerLevel || before == kNegateExponentLevel) level = kNegateExponentLevel;
    }
    pending_.push_back(
        {Kind::Operator, Operation::Negate, nullptr, priority(level), static_cast<std::uint32_t>(at_), 1});
    ++at_;
}

void Compiler::binary(Operation operation, int level, std::size_t length) {
    if (!reserveRow(at_)) return;
    reduce(priority(level));
    pending_.push_back({Kind::Operator, operation, nullptr, priority(level), static_cast<std::uint32_t>(at_), 2});
    at_ += length;
    operandExpected_ = true;
}

void Compiler::postfix(Operation operation, const Function* function) {
    if (!reserveRow(at_)) return;
    emit({Kind::Operator, operation, function, priority(kHighestLevel), static_cast<std::uint32_t>(at_), 1}, 1);
    ++at_;
}

void Compiler::separateArguments() {
    reduceToOpener();
    if (pending_.empty() || pending_.back().kind != Kind::Call) return fail(ErrorCode::SyntaxAtPosition, at_);
    Pending& call = pending_.back();
    const int arity = call.function->arity;
    if (arity != kAnyNumber && call.argumentCount >= static_cast<std::uint32_t>(arity)) {
        return fail(ErrorCode::TooManyArguments, at_);
    }
    ++call.argumentCount;
    ++at_;
    operandExpected_ = true;
}

void Compiler::close() {
    if (!isBracketOpen()) return fail(ErrorCode::TooManyClosers, at_);
    reduceToOpener();
    const Pending opener = pending_.back();
    if (opener.kind == Kind::Bar) return fail(ErrorCode::BarsMismatch, opener.position);
    if (opener.kind == Kind::Call) {
        endCall(opener);
    } else {
        operands_.back().degrees = false;
    }
    pending_.pop_back();
    --depth_;
    ++at_;
}

void Compiler::closeBar() {
    reduceToOpener();
    if (pending_.empty() || pending_.back().kind != Kind::Bar) return fail(ErrorCode::BarsMismatch, at_);
    emit(pending_.back(), 1);
    pending_.pop_back();
    --depth_;
    ++at_;
}

// An operand was expected where there is a closer, a separator, an operator, another character or the end.
void Compiler::operandMissing() {
    const char c = at_ < formula_.size() ? formula_[at_] : '\0';
    const bool ended = c == '\0' || isCloser(c) || c == kArgumentSeparator;
    if (isCloser(c) && !isBracketOpen()) return fail(ErrorCode::TooManyClosers, at_);
    const bool wanted =
        !pending_.empty() && (pending_.back().kind == Kind::Operator || pending_.back().kind == Kind::Call);
    fail(ended && wanted ? ErrorCode::MissingArgument : ErrorCode::SyntaxAtPosition, at_);
}

bool Compiler::isBracketOpen() const {
    return std::ranges::any_of(pending_,
                               [](const Pending& p) { return p.kind == Kind::Bracket || p.kind == Kind::Call; });
}

// True where a group of degrees would be the argument of `dec`, signs aside.
bool Compiler::isInsideDec() const {
    const auto last = std::find_if(pending_.rbegin(), pending_.rend(),
                                   [](const Pending& p) { return p.operation != Operation::Negate; });
    return last != pending_.rend() && last->function == &decimalDegrees();
}

void Compiler::reduce(std::int32_t priority) {
    while (!pending_.empty() && pending_.back().kind == Kind::Operator && pending_.back().priority >= priority) {
        emit(pending_.back(), pending_.back().argumentCount);
        pending_.pop_back();
    }
}

void Compiler::reduceToOpener() {
    reduce(std::numeric_limits<std::int32_t>::min());
}

void Compiler::endCall(Pending call) {
    const int arity = call.function->arity;
    if (arity != kAnyNumber && call.argumentCount < static_cast<std::uint32_t>(arity)) {
        return fail(ErrorCode::MissingArgument, at_);
    }
    if (call.function == &decimalDegrees() && !operands_.back().degrees) return fail(ErrorCode::NoDms, call.position);
    emit(call, call.argumentCount);
}

void Compiler::emit(const Pending& operation, std::uint32_t argumentCount) {
    Row row;
    row.operation = operation.operation;
    row.function = operation.function;
    row.priority = operation.priority;
    row.position = operation.position;
    row.argumentsAt = static_cast<std::uint32_t>(table_->arguments.size());
    row.argumentCount = argumentCount;
    row.result = EvaluationTable::kFirstResult + static_cast<std::uint32_t>(table_->rows.size());
    const std::size_t first = operands_.size() - argumentCount;
    for (std::size_t i = first; i < operands_.size(); ++i) table_->arguments.push_back(operands_[i].slot);
    if (argumentCount > 0) row.first = operands_[first].slot;
    if (argumentCount > 1) row.second = operands_[first + 1].slot;
    const bool group = operation.operation == Operation::Negate && operands_.back().degrees;
    operands_.resize(first);
    operands_.push_back({row.result, group});
    table_->rows.push_back(row);
}

// Sorts the rows by priority. Equal ones go from left to right, signs (alone on their level) from right to left.
void Compiler::orderRows() {
    auto& rows = table_->rows;
    const auto before = [](const Row& a, const Row& b) {
        if (a.priority != b.priority) return a.priority > b.priority;
        if (a.operation == Operation::Negate) return a.position > b.position;
        return a.position < b.position;
    };
    if (std::is_sorted(rows.begin(), rows.end(), before)) return;
    orderedRows_ = rows;
    std::sort(orderedRows_.begin(), orderedRows_.end(), before);
    newSlots_.resize(rows.size());
    for (std::size_t i = 0; i < rows.size(); ++i) {
        newSlots_[orderedRows_[i].result - EvaluationTable::kFirstResult] =
            EvaluationTable::kFirstResult + static_cast<std::uint32_t>(i);
    }
    const auto moved = [this](std::uint32_t slot) {
        const bool result = slot >= EvaluationTable::kFirstResult && slot < EvaluationTable::kFirstNumber;
        return result ? newSlots_[slot - EvaluationTable::kFirstResult] : slot;
    };
    for (Row& row : orderedRows_) {
        row.first = moved(row.first);
        row.second = moved(row.second);
        row.result = moved(row.result);
    }
    for (std::uint32_t& slot : table_->arguments) slot = moved(slot);
    rows.swap(orderedRows_);
    table_->value = moved(table_->value);
}

bool Compiler::reserveRow(std::size_t position) {
    if (rowCount_ == kMaxRows) {
        fail(ErrorCode::TooManyOperations, position);
        return false;
    }
    ++rowCount_;
    return true;
}

void Compiler::fail(ErrorCode code, std::size_t position, std::string_view detail) {
    error_ = {code, position, detail};
}

}  // namespace zelvor::expr
