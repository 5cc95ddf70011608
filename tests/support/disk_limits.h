#pragma once

#include <csignal>
#include <cstdlib>
#include <sys/resource.h>
#include <unistd.h>

namespace dorvan::test {

// A process that may do everything (as in a container) does its work without that for as long as this lives.
class AsOrdinaryUser {
public:
    AsOrdinaryUser() : administrator_(::geteuid() == 0) {
        if (administrator_ && ::seteuid(65534) != 0) administrator_ = false;
    }
    ~AsOrdinaryUser() {
        if (administrator_ && ::seteuid(0) != 0) std::abort();
    }
    AsOrdinaryUser(const AsOrdinaryUser&) = delete;
    AsOrdinaryUser& operator=(const AsOrdinaryUser&) = delete;

private:
    bool administrator_;
};

// No file can grow past `bytes` for as long as this lives: a write behaves as on a full disk.
class FileSizeLimit {
public:
    explicit FileSizeLimit(rlim_t bytes) : handler_(std::signal(SIGXFSZ, SIG_IGN)) {
        ::getrlimit(RLIMIT_FSIZE, &before_);
        const rlimit limit{bytes, before_.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FileSizeLimit() {
        ::setrlimit(RLIMIT_FSIZE, &before_);
        std::signal(SIGXFSZ, handler_);
    }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;

private:
    void (*handler_)(int);
    rlimit before_{};
};

} // namespace dorvan::test
