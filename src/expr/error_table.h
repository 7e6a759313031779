#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

namespace zelvor::expr {

// Number of slots of the error table; ids count from 1.
inline constexpr int kErrorSlots = 50;

enum class ErrorCode {
    None = 0,
    TooManyVariables = 1,
    VariableNotFound = 2,
    BarsMismatch = 4,
    SyntaxAtPosition = 5,
    UnknownFunction = 6,
    TooManyClosers = 7,
    MissingArgument = 8,
    TooManyArguments = 9,
    NotEnoughClosers = 11,
    Syntax = 12,
    FunctionMissing = 13,
    EvaluationOneArgument = 14,
    EvaluationTwoArguments = 15,
    EvaluationOperator = 16,
    EvaluationManyArguments = 17,
    NotAssigned = 18,
    UnknownConstant = 19,
    TooManyOperations = 20,
    WrongDms = 21,
    NoDms = 22,
};

// The template of an id; empty for a slot out of use.
std::string_view errorTemplate(int id);

// The message of an error, each "$" of its template replaced by the next detail.
std::string errorMessage(ErrorCode code, std::initializer_list<std::string_view> details);

}  // namespace zelvor::expr
