#pragma once

#include <exception>

#include "expr/arguments.h"

namespace zelvor::expr {

// Calls a Boost.Math function, which reports domain errors, poles and overflow by exceptions, as kFailed.
template <class Function>
double guarded(Function function) noexcept {
    try {
        return static_cast<double>(function());
    } catch (const std::exception&) {
        return kFailed;
    }
}

}  // namespace zelvor::expr
