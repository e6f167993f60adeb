#pragma once

#include <sys/resource.h>

#include <csignal>

/** For its life no file can grow beyond that many bytes, as on a disk that is full. */
class FFileSizeLimit {
 public:
    explicit FFileSizeLimit(rlim_t bytes) : mHandler(std::signal(SIGXFSZ, SIG_IGN)) {
        getrlimit(RLIMIT_FSIZE, &mBefore);
        const rlimit limit{bytes, mBefore.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FFileSizeLimit() {
        setrlimit(RLIMIT_FSIZE, &mBefore);
        std::signal(SIGXFSZ, mHandler);
    }
    FFileSizeLimit(const FFileSizeLimit&) = delete;
    FFileSizeLimit& operator=(const FFileSizeLimit&) = delete;

 private:
    rlimit mBefore{};
    void (*mHandler)(int);
};
