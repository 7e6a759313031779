#pragma once

#include <QString>
#include <exception>

namespace zelvor {

// Numbers of the run-time errors that pack authors know. Their texts stand in one table in the .cpp.
enum class ErrorNumber {
    InvalidProcedureCall = 5,
    Overflow = 6,
    OutOfMemory = 7,
    SubscriptOutOfRange = 9,
    DivisionByZero = 11,
    TypeMismatch = 13,
    OutOfStackSpace = 28,
    BadFileNameOrNumber = 52,
    FileNotFound = 53,
    DiskFull = 61,
    InputPastEndOfFile = 62,
    PermissionDenied = 70,
    PathFileAccessError = 75,
    PathNotFound = 76,
    ObjectVariableNotSet = 91,
    InvalidUseOfNull = 94,
    InvalidPropertyValue = 380,
    WrongNumberOfArguments = 450,
    SyntaxError = 1002,
    ExpectedClosingBracket = 1006,
    InvalidNumber = 1031,
    UnterminatedString = 1033,
    DatabaseError = 3704,
};

// The usual text of an error, e.g. "Subscript out of range" for 9.
QString errorText(ErrorNumber number);

// Thrown below a procedure's trap and caught by it; never crosses a public procedure.
class RunTimeError : public std::exception {
 public:
    // detail (a file, a name) is added to the usual text behind ": ".
    explicit RunTimeError(ErrorNumber number, const QString& detail = {});
    // An error whose whole text comes from elsewhere (a formula, a database driver).
    static RunTimeError withText(ErrorNumber number, const QString& text);

    [[nodiscard]] ErrorNumber code() const { return number_; }
    [[nodiscard]] int number() const { return static_cast<int>(number_); }
    [[nodiscard]] const QString& text() const { return text_; }
    // Where in the evaluated text it happened, counted from 1; 0 when that has no meaning.
    [[nodiscard]] int position() const { return position_; }
    [[nodiscard]] RunTimeError atPosition(int position) const;

    [[nodiscard]] const char* what() const noexcept override;

 private:
    ErrorNumber number_;
    QString text_;
    int position_ = 0;
};

}  // namespace zelvor
