#include "base/run_time_error.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

struct ErrorRow {
    ErrorNumber number;
    QStringView text;
};

constexpr std::array kErrors{
    ErrorRow{ErrorNumber::InvalidProcedureCall, u"Invalid procedure call or argument"},
    ErrorRow{ErrorNumber::Overflow, u"Overflow"},
    ErrorRow{ErrorNumber::OutOfMemory, u"Out of memory"},
    ErrorRow{ErrorNumber::SubscriptOutOfRange, u"Subscript out of range"},
    ErrorRow{ErrorNumber::DivisionByZero, u"Division by zero"},
    ErrorRow{ErrorNumber::TypeMismatch, u"Type mismatch"},
    ErrorRow{ErrorNumber::OutOfStackSpace, u"Out of stack space"},
    ErrorRow{ErrorNumber::BadFileNameOrNumber, u"Bad file name or number"},
    ErrorRow{ErrorNumber::FileNotFound, u"File not found"},
    ErrorRow{ErrorNumber::DiskFull, u"Disk full"},
    ErrorRow{ErrorNumber::InputPastEndOfFile, u"Input past end of file"},
    ErrorRow{ErrorNumber::PermissionDenied, u"Permission denied"},
    ErrorRow{ErrorNumber::PathFileAccessError, u"Path/File access error"},
    ErrorRow{ErrorNumber::PathNotFound, u"Path not found"},
    ErrorRow{ErrorNumber::ObjectVariableNotSet, u"Object variable not set"},
    ErrorRow{ErrorNumber::InvalidUseOfNull, u"Invalid use of Null"},
    ErrorRow{ErrorNumber::InvalidPropertyValue, u"Invalid property value"},
    ErrorRow{ErrorNumber::WrongNumberOfArguments, u"Wrong number of arguments or invalid property assignment"},
    ErrorRow{ErrorNumber::SyntaxError, u"Syntax error"},
    ErrorRow{ErrorNumber::ExpectedClosingBracket, u"Expected ')'"},
    ErrorRow{ErrorNumber::InvalidNumber, u"Invalid number"},
    ErrorRow{ErrorNumber::UnterminatedString, u"Unterminated string constant"},
    ErrorRow{ErrorNumber::DatabaseError, u"Database error"},
};

}  // namespace

QString errorText(ErrorNumber number) {
    const auto* row = std::ranges::find(kErrors, number, &ErrorRow::number);
    return row == kErrors.end() ? u"Application-defined error"_s : row->text.toString();
}

RunTimeError::RunTimeError(ErrorNumber number, const QString& detail) : number_(number), text_(errorText(number)) {
    if (!detail.isEmpty()) text_ += u": "_s + detail;
}

RunTimeError RunTimeError::withText(ErrorNumber number, const QString& text) {
    RunTimeError error(number);
    error.text_ = text;
    return error;
}

RunTimeError RunTimeError::atPosition(int position) const {
    RunTimeError located(*this);
    located.position_ = position;
    return located;
}

const char* RunTimeError::what() const noexcept {
    return "run-time error of a card or procedure";
}

}  // namespace zelvor
