#include "crash/crash_dump.h"

namespace zelvor {

void dumpCrashes(std::string_view) {}

}  // namespace zelvor
