#include "script/parser.h"

#include <algorithm>
#include <array>

#include "base/number.h"
#include "base/run_time_error.h"
#include "script/date_text.h"
#include "script/function_table.h"
#include "script/operators.h"

using namespace Qt::StringLiterals;

namespace zelvor::script {

namespace {

using UnaryOperation = Value (*)(const Value&);
using BinaryOperation = Value (*)(const Value&, const Value&);

bool isSyntaxError(const RunTimeError& error) {
    switch (error.code()) {
        case ErrorNumber::SyntaxError:
        case ErrorNumber::ExpectedClosingBracket:
        case ErrorNumber::InvalidNumber:
        case ErrorNumber::UnterminatedString:
            return true;
        default:
            return false;
    }
}

// Runs an operation; its error gets the position.
template <class Operation>
Value located(int position, Operation operation) {
    try {
        return operation();
    } catch (const RunTimeError& error) {
        throw error.atPosition(position);
    }
}

// A text token's content: doubled quotes stand for one.
QString unquoted(QStringView content, QChar quote) {
    QString text = content.toString();
    if (content.contains(quote)) {
        const std::array<QChar, 2> twice{quote, quote};
        text.replace(twice.data(), 2, &quote, 1);
    }
    return text;
}

Value radixNumber(QStringView lexeme, int position) {
    const bool wide = lexeme.endsWith(u'&');
    if (wide) lexeme.chop(1);
    const bool hexadecimal = lexeme.size() > 1 && lexeme[1].toLower() == u'h';
    const bool lettered = hexadecimal || (lexeme.size() > 1 && lexeme[1].toLower() == u'o');
    bool valid = false;
    const uint number = lexeme.mid(lettered ? 2 : 1).toUInt(&valid, hexadecimal ? 16 : 8);
    if (!valid) throw RunTimeError(ErrorNumber::InvalidNumber).atPosition(position);
    // Numbers of up to 16 bits are signed unless written wide, those of 32 bits always.
    if (number <= 0xFFFF && !wide) return int{static_cast<qint16>(number)};
    return static_cast<qint32>(number);
}

Value decimalNumber(QStringView lexeme, int position) {
    constexpr qsizetype kSurelyWhole = 9;
    if (lexeme.size() <= kSurelyWhole) {
        qint64 whole = 0;
        bool digitsOnly = true;
        for (const QChar c : lexeme) {
            digitsOnly = digitsOnly && c >= u'0' && c <= u'9';
            whole = whole * 10 + (c.unicode() - u'0');
        }
        if (digitsOnly) return whole;
    }
    double number = 0;
    try {
        if (!readNumber(lexeme, number)) throw RunTimeError(ErrorNumber::InvalidNumber);
    } catch (const RunTimeError&) {
        throw RunTimeError(ErrorNumber::InvalidNumber).atPosition(position);
    }
    const bool whole = !lexeme.contains(u'.') && !lexeme.contains(u'e', Qt::CaseInsensitive);
    // Behind 9007199254740992 doubles skip whole numbers; wholeValue keeps far smaller ones only.
    if (whole && number < 9007199254740992.0) return wholeValue(static_cast<qint64>(number));
    return number;
}

}  // namespace

struct Parser::Grammar {
    Token token;
    // How the token begins an operand; none when it cannot.
    PrefixRule prefix = nullptr;
    // Of an operator before its operand: the weakest level that the operand takes in.
    Level prefixOperand = Level::None;
    UnaryOperation unary = nullptr;
    // How strongly the token joins the operands on its two sides; all such operators go from left to right.
    Level level = Level::None;
    BinaryOperation binary = nullptr;
};

// The whole grammar: what each token does before an operand and between two.
const Parser::Grammar& Parser::grammar(Token token) {
    static constexpr std::array kGrammar{
        Grammar{Token::End},
        Grammar{Token::Number, &Parser::literal},
        Grammar{Token::Text, &Parser::literal},
        Grammar{Token::DateText, &Parser::literal},
        Grammar{Token::Name, &Parser::name},
        Grammar{Token::LeftBracket, &Parser::bracketed},
        Grammar{Token::RightBracket},
        Grammar{Token::Comma},
        Grammar{Token::Power, nullptr, Level::None, nullptr, Level::Power, power},
        Grammar{Token::Product, nullptr, Level::None, nullptr, Level::Product, product},
        Grammar{Token::Quotient, nullptr, Level::None, nullptr, Level::Product, quotient},
        Grammar{Token::WholeQuotient, nullptr, Level::None, nullptr, Level::WholeQuotient, wholeQuotient},
        Grammar{Token::Modulo, nullptr, Level::None, nullptr, Level::Modulo, modulo},
        Grammar{Token::Plus, &Parser::prefixOperator, Level::Sign, unchangedNumber, Level::Sum, sum},
        Grammar{Token::Minus, &Parser::prefixOperator, Level::Sign, negated, Level::Sum, difference},
        Grammar{Token::Join, nullptr, Level::None, nullptr, Level::Joining, join},
        Grammar{Token::Equal, nullptr, Level::None, nullptr, Level::Comparison, equal},
        Grammar{Token::Unequal, nullptr, Level::None, nullptr, Level::Comparison, unequal},
        Grammar{Token::Less, nullptr, Level::None, nullptr, Level::Comparison, less},
        Grammar{Token::Greater, nullptr, Level::None, nullptr, Level::Comparison, greater},
        Grammar{Token::LessOrEqual, nullptr, Level::None, nullptr, Level::Comparison, lessOrEqual},
        Grammar{Token::GreaterOrEqual, nullptr, Level::None, nullptr, Level::Comparison, greaterOrEqual},
        Grammar{Token::Not, &Parser::prefixOperator, Level::Not, logicalNot},
        Grammar{Token::And, nullptr, Level::None, nullptr, Level::And, logicalAnd},
        Grammar{Token::Or, nullptr, Level::None, nullptr, Level::Or, logicalOr},
        Grammar{Token::Xor, nullptr, Level::None, nullptr, Level::ExclusiveOr, logicalXor},
        Grammar{Token::Eqv, nullptr, Level::None, nullptr, Level::Equivalence, logicalEqv},
        Grammar{Token::Imp, nullptr, Level::None, nullptr, Level::Implication, logicalImp},
        Grammar{Token::True, &Parser::literal},
        Grammar{Token::False, &Parser::literal},
        Grammar{Token::Null, &Parser::literal},
        Grammar{Token::Empty, &Parser::literal},
    };
    static_assert(
        [] {
            for (size_t i = 0; i < kGrammar.size(); ++i) {
                if (kGrammar[i].token != static_cast<Token>(i)) return false;
            }
            return kGrammar.size() == static_cast<size_t>(Token::Empty) + 1;
        }(),
        "one row a token, in their order");
    return kGrammar[static_cast<size_t>(token)];
}

Value Parser::parse() {
    lexer_.advance();
    if (lexer_.token() == Token::End) return {};
    Value value = expression(Level::Implication);
    if (lexer_.token() != Token::End) throw RunTimeError(ErrorNumber::SyntaxError).atPosition(lexer_.position());
    return value;
}

// Reads operands and operators as long as the operators bind at least as strongly as `weakest`.
Value Parser::expression(Level weakest) {
    if (environment_.depth >= kDeepestNesting) {
        throw RunTimeError(ErrorNumber::OutOfStackSpace).atPosition(lexer_.position());
    }
    ++environment_.depth;
    const PrefixRule prefix = grammar(lexer_.token()).prefix;
    if (prefix == nullptr) throw RunTimeError(ErrorNumber::SyntaxError).atPosition(lexer_.position());
    Value left = (this->*prefix)();
    while (true) {
        const Grammar& row = grammar(lexer_.token());
        if (row.binary == nullptr || row.level < weakest) break;
        const int position = lexer_.position();
        lexer_.advance();
        const Value right = expression(static_cast<Level>(static_cast<int>(row.level) + 1));
        if (!checking()) left = located(position, [&] { return row.binary(left, right); });
    }
    --environment_.depth;
    return left;
}

Value Parser::literal() {
    const int position = lexer_.position();
    const QStringView lexeme = lexer_.lexeme();
    Value value;
    switch (lexer_.token()) {
        case Token::Number:
            value = lexeme.front() == u'&' ? radixNumber(lexeme, position) : decimalNumber(lexeme, position);
            break;
        case Token::Text:
            value = unquoted(lexeme, lexer_.quote());
            break;
        case Token::DateText: {
            const auto date = readDate(lexeme, &environment_.clock);
            if (!date) throw RunTimeError(ErrorNumber::SyntaxError).atPosition(position);
            value = *date;
            break;
        }
        case Token::True:
            value = true;
            break;
        case Token::False:
            value = false;
            break;
        case Token::Null:
            value = Value::Null{};
            break;
        default:
            break;
    }
    lexer_.advance();
    return value;
}

Value Parser::bracketed() {
    lexer_.advance();
    Value value = expression(Level::Implication);
    expectRightBracket();
    return indexed(std::move(value));
}

Value Parser::prefixOperator() {
    const Grammar& row = grammar(lexer_.token());
    const int position = lexer_.position();
    lexer_.advance();
    const Value operand = expression(row.prefixOperand);
    if (checking()) return {};
    return located(position, [&] { return row.unary(operand); });
}

// A call, a constant or a name without a value.
Value Parser::name() {
    const int position = lexer_.position();
    const QStringView name = lexer_.lexeme();
    const Function* function = findFunction(name);
    lexer_.advance();
    if (function != nullptr) return indexed(call(*function, position));
    if (auto constant = findConstant(name)) return indexed(std::move(*constant));
    if (lexer_.token() != Token::LeftBracket) {
        if (checkingNames()) emptyNames_ += name.toString();
        return {};
    }
    const size_t first = arguments_.size();
    readArguments();
    arguments_.resize(first);
    if (mode_ != Mode::CheckOnly)
        throw RunTimeError(ErrorNumber::TypeMismatch, u'\'' + name + u'\'').atPosition(position);
    return indexed({});
}

Value Parser::call(const Function& function, int position) {
    const size_t first = arguments_.size();
    if (lexer_.token() == Token::LeftBracket) readArguments();
    Value result;
    if (mode_ != Mode::CheckOnly) {
        const auto given = std::span<const Argument>(arguments_).subspan(first);
        try {
            const auto required = given.first(std::min(given.size(), static_cast<size_t>(function.least)));
            if (!function.takes(static_cast<qsizetype>(given.size())) ||
                !std::ranges::all_of(required, &Argument::given)) {
                throw RunTimeError(ErrorNumber::WrongNumberOfArguments);
            }
            if (checkingNames()) {
                result = {};
            } else if (function.nullRule == Function::NullRule::Spreads && given[0].value.isNull()) {
                result = Value::Null{};
            } else {
                result = function.handler(Arguments(given, environment_));
            }
        } catch (const RunTimeError& error) {
            // An error with a position comes from a text that Eval evaluated and says itself what is wrong.
            if (error.position() != 0) throw error.atPosition(position);
            throw RunTimeError(error.code(), u'\'' + function.name + u'\'').atPosition(position);
        }
    }
    arguments_.resize(first);
    return result;
}

// Reads "(a, , b)" and puts the arguments behind those of the calls around.
void Parser::readArguments() {
    lexer_.advance();
    if (lexer_.token() == Token::RightBracket) {
        lexer_.advance();
        return;
    }
    while (true) {
        if (lexer_.token() == Token::Comma || lexer_.token() == Token::RightBracket) {
            arguments_.push_back({.value = {}, .given = false});
        } else {
            Value value = expression(Level::Implication);
            arguments_.push_back({.value = std::move(value), .given = true});
        }
        if (lexer_.token() != Token::Comma) break;
        lexer_.advance();
    }
    expectRightBracket();
}

Value Parser::indexed(Value value) {
    while (lexer_.token() == Token::LeftBracket) {
        const int position = lexer_.position();
        const size_t first = arguments_.size();
        readArguments();
        if (!checking()) value = located(position, [&] { return elementAt(value, first); });
        arguments_.resize(first);
    }
    return value;
}

Value Parser::elementAt(const Value& value, size_t firstIndex) const {
    const auto* array = value.as<Value::Array>();
    if (array == nullptr) throw RunTimeError(ErrorNumber::TypeMismatch);
    // Arrays have one dimension.
    if (arguments_.size() - firstIndex != 1) throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
    const qint64 index = wholeNumber32(numberOf(arguments_[firstIndex].value));
    if (index < 0 || index >= static_cast<qint64>((*array)->size())) {
        throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
    }
    return (**array)[static_cast<size_t>(index)];
}

void Parser::expectRightBracket() {
    if (lexer_.token() != Token::RightBracket) {
        throw RunTimeError(ErrorNumber::ExpectedClosingBracket).atPosition(lexer_.position());
    }
    lexer_.advance();
}

Value evaluateText(QStringView expression, Environment& environment) {
    const int depth = environment.depth;
    try {
        return Parser(expression, environment, Parser::Mode::Evaluate).parse();
    } catch (const RunTimeError& error) {
        // Whether the rest can be read at all matters more than what its beginning did.
        environment.depth = depth;
        if (!isSyntaxError(error)) Parser(expression, environment, Parser::Mode::CheckOnly).parse();
        throw;
    }
}

}  // namespace zelvor::script
