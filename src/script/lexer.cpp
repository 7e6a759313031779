#include "script/lexer.h"

#include <array>

#include "base/run_time_error.h"

namespace zelvor::script {

namespace {

struct Spelling {
    QStringView text;
    Token token;
};

// The longer spelling stands before the shorter one that it begins with.
constexpr std::array kOperators{
    Spelling{u"<>", Token::Unequal},
    Spelling{u"<=", Token::LessOrEqual},
    Spelling{u"=<", Token::LessOrEqual},
    Spelling{u">=", Token::GreaterOrEqual},
    Spelling{u"=>", Token::GreaterOrEqual},
    Spelling{u"=", Token::Equal},
    Spelling{u"<", Token::Less},
    Spelling{u">", Token::Greater},
    Spelling{u"+", Token::Plus},
    Spelling{u"-", Token::Minus},
    Spelling{u"*", Token::Product},
    Spelling{u"/", Token::Quotient},
    Spelling{u"\\", Token::WholeQuotient},
    Spelling{u"^", Token::Power},
    Spelling{u"&", Token::Join},
    Spelling{u"(", Token::LeftBracket},
    Spelling{u")", Token::RightBracket},
    Spelling{u",", Token::Comma},
};

constexpr std::array kWords{
    Spelling{u"Mod", Token::Modulo}, Spelling{u"Not", Token::Not},     Spelling{u"And", Token::And},
    Spelling{u"Or", Token::Or},      Spelling{u"Xor", Token::Xor},     Spelling{u"Eqv", Token::Eqv},
    Spelling{u"Imp", Token::Imp},    Spelling{u"True", Token::True},   Spelling{u"False", Token::False},
    Spelling{u"Null", Token::Null},  Spelling{u"Empty", Token::Empty},
};
constexpr qsizetype kLongestWord = 5;

constexpr bool isLetter(QChar c) {
    return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z');
}
constexpr bool isInName(QChar c) {
    return isLetter(c) || isDigit(c) || c == u'_';
}
constexpr bool isBlank(QChar c) {
    return c == u' ' || c == u'\t' || c == u'\r' || c == u'\n' || c == QChar::Nbsp;
}

constexpr bool isOperandEnd(Token token) {
    switch (token) {
        case Token::Number:
        case Token::Text:
        case Token::DateText:
        case Token::Name:
        case Token::RightBracket:
        case Token::True:
        case Token::False:
        case Token::Null:
        case Token::Empty:
            return true;
        default:
            return false;
    }
}

// Token::End for an empty name, Token::Name for one that is no word of the language.
Token wordToken(QStringView name) {
    if (name.isEmpty()) return Token::End;
    if (name.size() > kLongestWord) return Token::Name;
    for (const Spelling& word : kWords) {
        if (compareNames(name, word.text) == 0) return word.token;
    }
    return Token::Name;
}

}  // namespace

void Lexer::advance() {
    while (next_ < text_.size() && isBlank(text_[next_])) ++next_;
    start_ = next_;
    if (next_ == text_.size()) {
        take(Token::End, 0);
        return;
    }
    const QChar first = text_[next_];
    if (isDigit(first) || (first == u'.' && isDigit(at(next_ + 1)))) {
        readNumber();
    } else if (isLetter(first)) {
        readName();
    } else if (first == u'"' || first == u'\'') {
        readText();
    } else if (first == u'#') {
        readDate();
    } else if (first == u'&' && !behindOperand_) {
        readRadixNumber();
    } else {
        readOperator();
    }
    behindOperand_ = isOperandEnd(token_);
}

void Lexer::take(Token token, qsizetype length) {
    token_ = token;
    lexeme_ = text_.mid(start_, length);
    next_ = start_ + length;
}

void Lexer::readNumber() {
    qsizetype end = start_;
    while (isDigit(at(end))) ++end;
    if (at(end) == u'.') ++end;
    while (isDigit(at(end))) ++end;
    if (at(end) == u'e' || at(end) == u'E') {
        const qsizetype digits = at(end + 1) == u'+' || at(end + 1) == u'-' ? end + 2 : end + 1;
        if (isDigit(at(digits))) end = digits;
        while (isDigit(at(end))) ++end;
    }
    // A variable's value may stand right before an operator's word: "7mod 4".
    const Token word = wordToken(nameAt(end));
    if (word == Token::Name || at(end) == u'.') throw RunTimeError(ErrorNumber::InvalidNumber).atPosition(position());
    take(Token::Number, end - start_);
}

// &H1F, &O17 or &17; a "&" behind the digits (a wider number, as "&HFFFF&" = 65535) belongs to the number.
void Lexer::readRadixNumber() {
    qsizetype end = start_ + 1 + nameAt(start_ + 1).size();
    if (end == start_ + 1) throw RunTimeError(ErrorNumber::SyntaxError).atPosition(position());
    if (at(end) == u'&') ++end;
    take(Token::Number, end - start_);
}

void Lexer::readText() {
    quote_ = text_[start_];
    qsizetype end = start_ + 1;
    while (true) {
        end = text_.indexOf(quote_, end);
        if (end < 0) throw RunTimeError(ErrorNumber::UnterminatedString).atPosition(position());
        if (at(end + 1) != quote_) break;
        end += 2;
    }
    take(Token::Text, end + 1 - start_);
    lexeme_ = text_.mid(start_ + 1, end - start_ - 1);
}

void Lexer::readDate() {
    const qsizetype end = text_.indexOf(u'#', start_ + 1);
    if (end < 0) throw RunTimeError(ErrorNumber::SyntaxError).atPosition(position());
    take(Token::DateText, end + 1 - start_);
    lexeme_ = text_.mid(start_ + 1, end - start_ - 1);
}

void Lexer::readName() {
    const QStringView name = nameAt(start_);
    take(wordToken(name), name.size());
}

QStringView Lexer::nameAt(qsizetype start) const {
    qsizetype end = start;
    while (isInName(at(end))) ++end;
    return text_.mid(start, end - start);
}

void Lexer::readOperator() {
    const QStringView rest = text_.mid(start_);
    for (const Spelling& spelling : kOperators) {
        if (rest.startsWith(spelling.text)) {
            take(spelling.token, spelling.text.size());
            return;
        }
    }
    throw RunTimeError(ErrorNumber::SyntaxError).atPosition(position());
}

}  // namespace zelvor::script
