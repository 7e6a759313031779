#include "system/thread_folder.h"

namespace zelvor {

bool takeOwnWorkingFolder() {
    return false;
}

}  // namespace zelvor
