#include "system/thread_folder.h"

#include <sched.h>

namespace zelvor {

bool takeOwnWorkingFolder() {
#ifdef CLONE_FS
    return unshare(CLONE_FS) == 0;
#else
    return false;
#endif
}

}  // namespace zelvor
