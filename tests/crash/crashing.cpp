// Ends in the way its argument names.

#include <cstring>
#include <stdexcept>

#include "crash/crash_dump.h"

namespace {

int recurse(volatile int* depth) {
    volatile int here[1024] = {*depth};
    return here[0] == -1 ? 0 : recurse(here) + here[1];
}

}  // namespace

int main(int, char* argv[]) {
    zelvor::dumpCrashes();
    if (std::strcmp(argv[1], "exception") == 0) throw std::runtime_error("nobody catches this");
    int depth = 0;
    return recurse(&depth);
}
