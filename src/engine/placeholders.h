#pragma once

#include <QString>
#include <vector>

#include "engine/query_result.h"
#include "engine/variable_store.h"

namespace zelvor {

// Limits of one expansion; beyond them it ends with 28 Out of stack space instead of freezing the program.
constexpr int kLargestReplacements = 100'000;
constexpr qsizetype kLargestExpansion = qsizetype{16} * 1024 * 1024;  // UTF-16 units

// What "{@@}", the previous answer of a pick list, means to an expansion.
enum class PreviousAnswer { AsVariable, LeftAlone };

// Replaces "{@NAME}" by the variable's value (which is entered when missing) and "{r|c}" by a cell of the query result,
// from the inside out and again in what was put in, until no "{" is left. A text that begins with "%" stays as it is.
// Throws 5 for brackets that do not pair, 9 and 13 for a malformed cell, 28 for an expansion without end.
QString EXPAND_VARS(const QString& text, VariableStore& variables, const QueryResult& result,
                    PreviousAnswer previousAnswer = PreviousAnswer::AsVariable);

// A text that is expanded often, taken apart once.
class ExpandableText {
 public:
    ExpandableText() = default;
    explicit ExpandableText(QString text);

    [[nodiscard]] const QString& raw() const { return raw_; }
    // True when expanding changes nothing.
    [[nodiscard]] bool isConstant() const { return simple_ && pieces_.size() == 1; }
    // EXPAND_VARS of the text into `out`, whose memory is used again.
    void expandInto(QString& out, VariableStore& variables, const QueryResult& result) const;

 private:
    // A literal followed by a variable; the last piece's name is empty.
    struct Piece {
        QStringView literal;
        QString name;
    };
    bool writePieces(QString& text, VariableStore& variables) const;

    QString raw_;
    std::vector<Piece> pieces_;
    bool simple_ = true;  // only "{@NAME}" placeholders, none inside another
};

}  // namespace zelvor
