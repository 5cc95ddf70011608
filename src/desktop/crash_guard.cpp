#include "desktop/crash_guard.h"

#include <array>
#include <csignal>
#include <cstdlib>
#include <utility>

#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

namespace dorvan {

namespace {

constexpr std::array Crashes = {SIGSEGV, SIGBUS, SIGFPE, SIGILL, SIGABRT};
constexpr unsigned SecondsForTheCopy = 10;
constexpr std::size_t StackSize = std::size_t(1) << 20;

std::function<void()>* rescueInForce = nullptr;

void SetHandlers(void (*handler)(int)) {
    struct sigaction action {};
    action.sa_handler = handler;
    ::sigemptyset(&action.sa_mask);
    action.sa_flags = static_cast<int>(SA_ONSTACK | SA_RESETHAND); // a second crash ends it
    for (const int number : Crashes) ::sigaction(number, &action, nullptr);
}

// Where a handler can still run when the stack itself has run over.
void MakeStack() {
    static void* memory = nullptr;
    if (memory) return;
    void* made = ::mmap(nullptr, StackSize, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (made == MAP_FAILED) return;
    memory = made;
    stack_t stack{};
    stack.ss_sp = memory;
    stack.ss_size = StackSize;
    ::sigaltstack(&stack, nullptr);
}

// A copy of the crashed process. It may hang, since another function may hold a lock for good.
[[noreturn]] void RescueInTheCopy() {
    SetHandlers(SIG_DFL);
    ::signal(SIGALRM, SIG_DFL);
    sigset_t all;
    ::sigfillset(&all);
    ::sigprocmask(SIG_UNBLOCK, &all, nullptr);
    ::alarm(SecondsForTheCopy);
    try {
        (*rescueInForce)();
    } catch (...) { // NOLINT: nobody is left to be told
    }
    ::_exit(0);
}

// Only what a signal handler may do.
void OnCrash(int number) {
    if (rescueInForce) {
        const pid_t copy = ::_Fork();
        if (copy == 0) RescueInTheCopy();
        if (copy > 0) ::waitpid(copy, nullptr, 0);
    }
    ::signal(number, SIG_DFL);
    ::raise(number); // as soon as the handler returns
}

// Once: a crash on the way out has nothing left to save.
void OnExit() {
    if (const auto* rescue = std::exchange(rescueInForce, nullptr)) (*rescue)();
}

} // namespace

CrashGuard::CrashGuard(std::function<void()> rescue) {
    rescueInForce = new std::function<void()>(std::move(rescue)); // lives on where exit() ends the process
    MakeStack();
    SetHandlers(OnCrash);
    static const bool registered = std::atexit(OnExit) == 0;
    static_cast<void>(registered);
}

CrashGuard::~CrashGuard() {
    SetHandlers(SIG_DFL);
    delete rescueInForce;
    rescueInForce = nullptr;
}

} // namespace dorvan
