#pragma once

#include <QString>
#include <QVarLengthArray>

#include "base/run_time_error.h"

namespace zelvor {

// 9 Subscript out of range for a part that a text should have: whoever knows the text's form says it in the detail.
class MissingPiece : public RunTimeError {
 public:
    explicit MissingPiece(const QString& detail = {}) : RunTimeError(ErrorNumber::SubscriptOutOfRange, detail) {}
};

// Pieces of a text split at a separator, as views. An empty text has no pieces; without a separator it is one piece.
class Pieces {
 public:
    Pieces(QStringView text, QChar separator);
    Pieces(QStringView text, QStringView separator);

    [[nodiscard]] int count() const { return static_cast<int>(pieces_.size()); }
    // Throws MissingPiece when there is no such piece.
    QStringView operator[](int index) const {
        if (index < 0 || index >= count()) throw MissingPiece();
        return pieces_[index];
    }

 private:
    QVarLengthArray<QStringView, 8> pieces_;
};

// The argument of one command line: the text behind the command word's "~", and its ";"-separated pieces.
class Arguments {
 public:
    // raw: the argument as written; text: as the command takes it (with or without its placeholders replaced).
    // Both must outlive this object. null: the line has no argument.
    Arguments(const QString* raw, const QString* text) : raw_(raw), text_(text) {}

    // False when the line is the command word alone.
    [[nodiscard]] bool given() const { return raw_ != nullptr; }
    // Each throws MissingPiece when the line has no argument.
    [[nodiscard]] const QString& text() const { return *present(text_); }
    [[nodiscard]] const QString& raw() const { return *present(raw_); }
    [[nodiscard]] Pieces pieces() const { return {text(), u';'}; }
    [[nodiscard]] Pieces rawPieces() const { return {raw(), u';'}; }

 private:
    static const QString* present(const QString* text) {
        if (text == nullptr) throw MissingPiece();
        return text;
    }

    const QString* raw_;
    const QString* text_;
};

}  // namespace zelvor
