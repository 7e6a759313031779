#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <limits>
#include <string_view>

namespace zelvor::expr {

enum class Angle : std::uint8_t { Rad, Deg, Grad };

// What a function of the library returns for arguments outside its domain. Infinities mean the same.
inline constexpr double kFailed = std::numeric_limits<double>::quiet_NaN();

// The argument values of one row of the evaluation table, read where they lie.
class Arguments {
 public:
    Arguments(const double* slots, const std::uint32_t* indexes, std::size_t count)
        : slots_(slots), indexes_(indexes), count_(count) {}

    [[nodiscard]] std::size_t size() const { return count_; }
    double operator[](std::size_t i) const { return slots_[indexes_[i]]; }

 private:
    const double* slots_;
    const std::uint32_t* indexes_;
    std::size_t count_;
};

// Local date and time: days since 30 December 1899, the time of day their fraction.
using LocalClock = std::function<double()>;

// What a formula gives its functions beside their arguments, and what they may leave there.
struct Context {
    Angle angle = Angle::Rad;
    LocalClock clock = {};
    std::uint64_t randomState = 0;
    std::string_view warning;
};

}  // namespace zelvor::expr
