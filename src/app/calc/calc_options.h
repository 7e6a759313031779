#pragma once

#include <optional>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "plain/number.h"

namespace zelvor {

struct CalcOptions {
    std::vector<std::pair<std::string, double>> variables;
    std::string angle = "RAD";
    bool degrees = false;
    bool units = false;
    bool assignExplicit = false;
    int digits = plain::kSignificantDigits;
    bool dump = false;
    bool list = false;
    bool help = false;
    std::optional<std::string> formula;
};

// The options that the arguments give; on wrong ones nothing, with `problem` saying why.
std::optional<CalcOptions> readCalcOptions(std::span<const std::string> arguments, std::string& problem);

}  // namespace zelvor
