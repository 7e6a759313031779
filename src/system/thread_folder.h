#pragma once

namespace zelvor {

// From now on the calling thread has a working folder of its own, the same one as yet. False where that cannot be: not
// every system has it, and containers may not allow it.
[[nodiscard]] bool takeOwnWorkingFolder();

}  // namespace zelvor
