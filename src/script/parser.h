#pragma once

#include <QStringView>
#include <vector>

#include "base/value.h"
#include "script/arguments.h"
#include "script/lexer.h"

namespace zelvor::script {

// Binding strength, from the weakest to the strongest.
enum class Level {
    None,
    Implication,
    Equivalence,
    ExclusiveOr,
    Or,
    And,
    Not,
    Comparison,
    Joining,
    Sum,
    Modulo,
    WholeQuotient,
    Product,
    Sign,
    Power,
    Operand,
};

// A Pratt parser over the grammar table in parser.cpp that evaluates as it reads. Made for one evaluation.
class Parser {
 public:
    // CheckOnly reads the whole text and computes nothing: only what cannot be read throws. CheckNames also refuses
    // unknown functions and wrong numbers of arguments, and notes the names without a value.
    enum class Mode { Evaluate, CheckOnly, CheckNames };

    // More levels of brackets, signs, calls and Eval than this are refused with 28 Out of stack space.
    static constexpr int kDeepestNesting = 200;

    Parser(QStringView expression, Environment& environment, Mode mode)
        : lexer_(expression), environment_(environment), mode_(mode) {}

    // The whole expression's value. Throws RunTimeError with the position.
    Value parse();

    // After CheckNames.
    [[nodiscard]] const QStringList& emptyNames() const { return emptyNames_; }

 private:
    struct Grammar;
    using PrefixRule = Value (Parser::*)();
    static const Grammar& grammar(Token token);

    Value expression(Level weakest);
    Value literal();
    Value bracketed();
    Value prefixOperator();
    Value name();

    Value call(const struct Function& function, int position);
    void readArguments();
    Value indexed(Value value);
    // The element that the arguments from firstIndex on name.
    [[nodiscard]] Value elementAt(const Value& value, size_t firstIndex) const;
    void expectRightBracket();
    [[nodiscard]] bool checking() const { return mode_ != Mode::Evaluate; }
    [[nodiscard]] bool checkingNames() const { return mode_ == Mode::CheckNames; }

    Lexer lexer_;
    Environment& environment_;
    Mode mode_;
    // The arguments of all calls being read, those of the innermost last.
    std::vector<Argument> arguments_;
    QStringList emptyNames_;
};

// Evaluates within `environment`, whose depth is carried on: what Evaluator::evaluate and the function Eval do.
Value evaluateText(QStringView expression, Environment& environment);

}  // namespace zelvor::script
