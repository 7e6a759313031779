#include "expr/error_table.h"

#include <array>

namespace zelvor::expr {

namespace {

constexpr std::array<std::string_view, kErrorSlots + 1> kTemplates{
    "",
    "too many variables",  // begins with a small letter, meant
    "Variable not found",
    "",
    "abs symbols |.| mismatch",
    "Syntax error at pos: $",
    "Function < $ > unknown at pos: $",
    "Too many closing brackets at pos: $",
    "missing argument",
    "Too many arguments at pos: $",
    "",
    "Not enough closing brackets",
    "Syntax error: $",
    "Function < $ > missing?",
    "Evaluation error < $($) > at pos: $",
    "Evaluation error < $($, $) > at pos: $",
    "Evaluation error < $ $ $ > at pos: $",
    "Evaluation error < $($) > at pos: $",
    "Variable < $ > not assigned",
    "Constant unknown: $",
    "Too many operations",
    "Wrong DMS format",
    "No DMS format",
};

}  // namespace

std::string_view errorTemplate(int id) {
    return id >= 1 && id <= kErrorSlots ? kTemplates[static_cast<std::size_t>(id)] : std::string_view{};
}

std::string errorMessage(ErrorCode code, std::initializer_list<std::string_view> details) {
    std::string message;
    const auto* detail = details.begin();
    for (const char c : errorTemplate(static_cast<int>(code))) {
        if (c != '$') {
            message += c;
        } else if (detail != details.end()) {
            message += *detail++;
        }
    }
    return message;
}

}  // namespace zelvor::expr
