// main() of tests that need an event loop but no window.

#include <gtest/gtest.h>

#include <QCoreApplication>

#if defined(__has_feature)
#if __has_feature(thread_sanitizer)
#include <dlfcn.h>
#include <sched.h>

#include <cstdarg>

// QProcess makes its child with this; the thread sanitizer's own of Clang 14 ends the program there.
extern "C" int clone(int (*child)(void*), void* stack, int flags, void* argument, ...) noexcept {
    static const auto real = reinterpret_cast<decltype(&clone)>(dlsym(RTLD_NEXT, "clone"));
    va_list more;
    va_start(more, argument);
    void* const parent = va_arg(more, void*);
    va_end(more);
    return real(child, stack, flags, argument, parent);
}
#endif
#endif

int main(int argc, char* argv[]) {
    const QCoreApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
