#include "app_calc/calc_options.h"

#include <charconv>
#include <cmath>
#include <string_view>

namespace zelvor {

namespace {

constexpr int kMaxDigits = 17;

template <class Number>
bool readWhole(std::string_view text, Number& number) {
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return error == std::errc() && end == text.data() + text.size();
}

bool readVariable(std::string_view text, CalcOptions& options) {
    const std::size_t mark = text.find('=');
    double value = 0;
    if (mark == std::string_view::npos || mark == 0 || !readWhole(text.substr(mark + 1), value)) return false;
    if (!std::isfinite(value)) return false;
    options.variables.emplace_back(text.substr(0, mark), value);
    return true;
}

bool readAngle(std::string_view text, CalcOptions& options) {
    for (const std::string_view unit : {"RAD", "DEG", "GRAD", "rad", "deg", "grad"}) {
        if (text == unit) options.angle = text;
    }
    return options.angle == text;
}

bool readDigits(std::string_view text, CalcOptions& options) {
    return readWhole(text, options.digits) && options.digits >= 1 && options.digits <= kMaxDigits;
}

struct Switch {
    std::string_view word;
    bool CalcOptions::*member;
};

constexpr Switch kSwitches[] = {
    {"--dms", &CalcOptions::degrees},
    {"--units", &CalcOptions::units},
    {"--assign-explicit", &CalcOptions::assignExplicit},
    {"--dump", &CalcOptions::dump},
    {"--list", &CalcOptions::list},
    {"--help", &CalcOptions::help},
    {"-h", &CalcOptions::help},
};

struct Setting {
    std::string_view word;
    std::string_view wanted;
    bool (*read)(std::string_view text, CalcOptions& options);
};

constexpr Setting kSettings[] = {
    {"--var", "NAME=VALUE", readVariable},
    {"--angle", "RAD, DEG or GRAD", readAngle},
    {"--digits", "a number from 1 to 17", readDigits},
};

bool readSwitch(std::string_view word, CalcOptions& options) {
    for (const Switch& known : kSwitches) {
        if (known.word != word) continue;
        options.*known.member = true;
        return true;
    }
    return false;
}

const Setting* findSetting(std::string_view word) {
    for (const Setting& known : kSettings) {
        if (known.word == word) return &known;
    }
    return nullptr;
}

}  // namespace

std::optional<CalcOptions> readCalcOptions(std::span<const std::string> arguments, std::string& problem) {
    CalcOptions options;
    bool optionsEnded = false;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string& word = arguments[i];
        if (!optionsEnded && word == "--") {
            optionsEnded = true;
        } else if (!optionsEnded && readSwitch(word, options)) {
            continue;
        } else if (const Setting* const setting = optionsEnded ? nullptr : findSetting(word)) {
            ++i;
            if (i == arguments.size() || !setting->read(arguments[i], options)) {
                problem = word + " takes " + std::string(setting->wanted);
                return std::nullopt;
            }
        } else if (!optionsEnded && word.starts_with("--")) {
            problem = "unknown option " + word;
            return std::nullopt;
        } else if (options.formula) {
            problem = "more than one formula; put it in quotes";
            return std::nullopt;
        } else {
            // A single "-" begins a formula, as in -2^2.
            options.formula = word;
        }
    }
    if (!options.formula && !options.list && !options.help) {
        problem = "no formula";
        return std::nullopt;
    }
    return options;
}

}  // namespace zelvor
