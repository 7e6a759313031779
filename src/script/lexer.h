#pragma once

#include <QStringView>

namespace zelvor::script {

constexpr bool isDigit(QChar c) {
    return c >= u'0' && c <= u'9';
}

// The kinds of token, in the order of the grammar table's rows (parser.cpp).
enum class Token {
    End,
    Number,
    Text,
    DateText,
    Name,
    LeftBracket,
    RightBracket,
    Comma,
    Power,
    Product,
    Quotient,
    WholeQuotient,
    Modulo,
    Plus,
    Minus,
    Join,
    Equal,
    Unequal,
    Less,
    Greater,
    LessOrEqual,
    GreaterOrEqual,
    Not,
    And,
    Or,
    Xor,
    Eqv,
    Imp,
    True,
    False,
    Null,
    Empty,
};

// Cuts an expression into tokens, all of them views into it. Throws 1002, 1031 and 1033 with the position.
class Lexer {
 public:
    // The text must outlive the lexer.
    explicit Lexer(QStringView text) : text_(text) {}

    // Reads the next token; at the end of the text again and again Token::End.
    void advance();

    [[nodiscard]] Token token() const { return token_; }
    // The token as written; of texts and dates what stands between their quotes, doubled quotes still doubled.
    [[nodiscard]] QStringView lexeme() const { return lexeme_; }
    // The quote that encloses the text token.
    [[nodiscard]] QChar quote() const { return quote_; }
    // Where the token begins, from 1.
    [[nodiscard]] int position() const { return static_cast<int>(start_) + 1; }

 private:
    [[nodiscard]] QChar at(qsizetype index) const { return index < text_.size() ? text_[index] : QChar(); }
    // The letters, digits and "_" that begin there.
    [[nodiscard]] QStringView nameAt(qsizetype start) const;
    void take(Token token, qsizetype length);
    void readNumber();
    void readRadixNumber();
    void readText();
    void readDate();
    void readName();
    void readOperator();

    QStringView text_;
    qsizetype next_ = 0;
    qsizetype start_ = 0;
    Token token_ = Token::End;
    QStringView lexeme_;
    QChar quote_;
    // Behind an operand "&" joins, so that "a"&Hour(Now) does not read as a hexadecimal number.
    bool behindOperand_ = false;
};

// Compares ASCII names without regard to case.
constexpr int compareNames(QStringView left, QStringView right) {
    constexpr auto fold = [](QChar c) { return c >= u'A' && c <= u'Z' ? c.unicode() + 32 : int{c.unicode()}; };
    const qsizetype shorter = left.size() < right.size() ? left.size() : right.size();
    for (qsizetype i = 0; i < shorter; ++i) {
        const int difference = fold(left[i]) - fold(right[i]);
        if (difference != 0) return difference;
    }
    return static_cast<int>(left.size() - right.size());
}

}  // namespace zelvor::script
