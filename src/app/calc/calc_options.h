#pragma once

#include <QStringList>
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
    std::string formula;
};

// Throws UsageError.
CalcOptions readCalcOptions(const QStringList& arguments);

}  // namespace zelvor
