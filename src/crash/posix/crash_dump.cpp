#include "crash/crash_dump.h"

#include <cxxabi.h>
#include <execinfo.h>
#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <chrono>
#include <climits>
#include <csignal>
#include <cstdint>
#include <cstdlib>
#include <ctime>
#include <exception>
#include <string>

namespace zelvor {

namespace {

struct CrashSignal {
    int number;
    std::string_view name;
};
constexpr std::array kSignals{CrashSignal{SIGSEGV, "SIGSEGV, segmentation fault"},
                              CrashSignal{SIGABRT, "SIGABRT, aborted"}, CrashSignal{SIGFPE, "SIGFPE, arithmetic error"},
                              CrashSignal{SIGBUS, "SIGBUS, bus error"},
                              CrashSignal{SIGILL, "SIGILL, illegal instruction"}};

// A text of fixed room: what is needed while the program crashes is made before, or made without allocating.
template <std::size_t Room>
class FixedText {
 public:
    void clear() { size_ = 0; }
    FixedText& operator<<(std::string_view text) {
        const std::size_t taken = std::min(text.size(), Room - 1 - size_);
        std::copy_n(text.begin(), taken, text_.begin() + size_);
        size_ += taken;
        text_[size_] = '\0';
        return *this;
    }
    FixedText& number(std::uint64_t value, int base = 10, int digits = 1) {
        std::array<char, 20> figures;
        const char* end = std::to_chars(figures.begin(), figures.end(), value, base).ptr;
        for (auto missing = digits - (end - figures.begin()); missing > 0; --missing) *this << "0";
        return *this << std::string_view(figures.begin(), end);
    }
    [[nodiscard]] std::string_view view() const { return {text_.data(), size_}; }
    [[nodiscard]] const char* c_str() const { return text_.data(); }

 private:
    std::array<char, Room> text_{};
    std::size_t size_ = 0;
};

using Path = FixedText<PATH_MAX>;

// What the signal handler works with; a handler takes no argument of ours.
std::array<Path, 3> paths;  // in the order they are tried
FixedText<NAME_MAX + 1> program;
FixedText<1024> uncaught;                           // the exception that ended the program
std::array<char, std::size_t{64} * 1024> ownStack;  // for a crash by too deep a recursion

void write(int file, std::string_view text) {
    while (!text.empty()) {
        const ssize_t written = ::write(file, text.data(), text.size());
        if (written <= 0) return;
        text.remove_prefix(static_cast<std::size_t>(written));
    }
}

// "2026-11-21 20:31:07 UTC". The C library's own ways take locks.
template <std::size_t Room>
void addTime(FixedText<Room>& text) {
    using namespace std::chrono;
    const sys_seconds now{seconds(std::time(nullptr))};
    const sys_days day = floor<days>(now);
    const year_month_day date(day);
    const hh_mm_ss time(now - day);
    text.number(static_cast<std::uint64_t>(int(date.year()))) << "-";
    text.number(unsigned(date.month()), 10, 2) << "-";
    text.number(unsigned(date.day()), 10, 2) << " ";
    text.number(static_cast<std::uint64_t>(time.hours().count()), 10, 2) << ":";
    text.number(static_cast<std::uint64_t>(time.minutes().count()), 10, 2) << ":";
    text.number(static_cast<std::uint64_t>(time.seconds().count()), 10, 2) << " UTC";
}

void writeDump(int file, std::string_view what, const siginfo_t& info) {
    FixedText<2048> head;
    head << program.view() << " " ZELVOR_VERSION " crashed at ";
    addTime(head);
    head << "\n" << what;
    // Without a fault of the program's own somebody has sent the signal: there is no address.
    if (info.si_code > 0) (head << " at address 0x").number(reinterpret_cast<std::uintptr_t>(info.si_addr), 16);
    head << "\n";
    if (!uncaught.view().empty()) head << "uncaught exception: " << uncaught.view() << "\n";
    write(file, head.view());
    constexpr int kMostFrames = 128;
    std::array<void*, kMostFrames> frames;
    backtrace_symbols_fd(frames.data(), backtrace(frames.data(), kMostFrames), file);
    write(file, "\n");
}

void onCrash(int signal, siginfo_t* info, void*) {
    constexpr unsigned kSecondsAllowed = 5;  // should the dump hang, on a lock that the crash left behind
    alarm(kSecondsAllowed);
    const auto* known = std::ranges::find(kSignals, signal, &CrashSignal::number);
    FixedText<PATH_MAX + 2048> news;
    news << program.view() << ": crashed (" << known->name;
    if (!uncaught.view().empty()) news << ", " << uncaught.view();
    news << "); ";
    const auto* dump = paths.begin();
    int file = -1;
    for (; dump != paths.end(); ++dump) {
        if (dump->view().empty()) continue;
        file = open(dump->c_str(), O_WRONLY | O_CREAT | O_APPEND | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC, 0644);
        if (file >= 0) break;
    }
    if (file >= 0) {
        writeDump(file, known->name, *info);
        close(file);
        news << "the stack trace is in " << dump->view() << "\n";
        write(STDERR_FILENO, news.view());
    } else {
        news << "the stack trace could not be kept:\n";
        write(STDERR_FILENO, news.view());
        writeDump(STDERR_FILENO, known->name, *info);
    }
    raise(signal);  // its default action, which was put back on entry, follows as the handler ends
}

[[noreturn]] void onTerminate() {
    if (const std::type_info* type = abi::__cxa_current_exception_type()) {
        char* readable = abi::__cxa_demangle(type->name(), nullptr, nullptr, nullptr);
        uncaught << (readable != nullptr ? readable : type->name());
        std::free(readable);
        try {
            std::rethrow_exception(std::current_exception());
        } catch (const std::exception& error) {
            uncaught << ": " << error.what();
        } catch (...) {  // its type is all there is
        }
    }
    std::abort();
}

void setPath(Path& path, std::string_view folder) {
    path.clear();
    if (!folder.empty()) path << folder << "/" << program.view() << ".dmp";
}

void install() {
    std::array<char, PATH_MAX> executable;
    const ssize_t length = readlink("/proc/self/exe", executable.data(), executable.size());
    const std::string_view path(executable.data(), static_cast<std::size_t>(std::max<ssize_t>(length, 0)));
    const std::size_t slash = path.rfind('/');
    if (slash == std::string_view::npos) return;
    program << path.substr(slash + 1);
    setPath(paths.front(), path.substr(0, slash));
    const char* temporary = std::getenv("TMPDIR");
    setPath(paths.back(), temporary != nullptr ? temporary : "/tmp");

    // The first call loads a library, which a crashed program could not.
    void* frame = nullptr;
    backtrace(&frame, 1);
    stack_t stack{};
    stack.ss_sp = ownStack.data();
    stack.ss_size = ownStack.size();
    sigaltstack(&stack, nullptr);
    struct sigaction action {};
    action.sa_sigaction = onCrash;
    action.sa_flags = SA_SIGINFO | SA_ONSTACK | static_cast<int>(SA_RESETHAND);
    for (const CrashSignal& signal : kSignals) sigaction(signal.number, &action, nullptr);
    std::set_terminate(onTerminate);
}

}  // namespace

void dumpCrashes(std::string_view folder) {
    if (!kDumpsCrashes) return;
    if (program.view().empty()) install();
    if (!folder.empty()) setPath(paths.at(1), folder);
}

}  // namespace zelvor
