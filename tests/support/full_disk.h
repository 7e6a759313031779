#pragma once

#include <sys/resource.h>

#include <csignal>

namespace zelvor::test {

// A disk that is full while this lives: no file grows beyond that many bytes, the last write to it is cut there.
class FullDisk {
 public:
    explicit FullDisk(rlim_t bytes) : signal_(std::signal(SIGXFSZ, SIG_IGN)) {
        getrlimit(RLIMIT_FSIZE, &before_);
        const rlimit full{bytes, before_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &full);
    }
    ~FullDisk() {
        setrlimit(RLIMIT_FSIZE, &before_);
        std::signal(SIGXFSZ, signal_);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

 private:
    void (*signal_)(int);
    rlimit before_{};
};

}  // namespace zelvor::test
