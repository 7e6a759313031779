#pragma once

#include <string_view>

namespace zelvor {

// False in builds whose sanitizer handles crashes itself.
#if defined(__SANITIZE_ADDRESS__)
constexpr bool kDumpsCrashes = false;
#elif defined(__has_feature)
constexpr bool kDumpsCrashes = !__has_feature(address_sanitizer);
#else
constexpr bool kDumpsCrashes = true;
#endif

// From now on a crash (SIGSEGV, SIGABRT, SIGFPE, SIGBUS, SIGILL, an exception that nobody catches) is appended with
// its stack trace to "<executable>.dmp" before the program dies of it: in the executable's folder or, where that
// cannot be written, in `folder`, else in the one for temporary files. The error stream says where it is. A call with
// a folder may follow once that is known. Nothing happens without kDumpsCrashes.
void dumpCrashes(std::string_view folder = {});

}  // namespace zelvor
