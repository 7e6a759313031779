#pragma once

namespace zelvor {

// Whether what changes so often blinks calmly: no more than three flashes a second, of two changes each. Whatever
// blinks asserts it of its interval.
constexpr bool blinksCalmly(int milliseconds) {
    constexpr int kMostFlashes = 3;
    return 2 * kMostFlashes * milliseconds >= 1000;
}

}  // namespace zelvor
