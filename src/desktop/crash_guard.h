#pragma once

#include <functional>

namespace dorvan {

// The ends of a process that leave it no time, while one of these lives: a crash (SIGSEGV, SIGBUS, SIGFPE,
// SIGILL, SIGABRT, an exception that nobody caught) and an exit from within a library, as on a lost
// connection to the screen.
//
// In a crash a copy of the process does the rescue, since the memory may be in any state: whatever happens to
// it, the process itself only waits for it, at most a few seconds, and then ends by the signal as it would
// have.
class CrashGuard {
public:
    // One at a time.
    explicit CrashGuard(std::function<void()> rescue);
    ~CrashGuard();
    CrashGuard(const CrashGuard&) = delete;
    CrashGuard& operator=(const CrashGuard&) = delete;
};

} // namespace dorvan
