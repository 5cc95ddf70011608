#include "cli/cli_platform.h"

#include "making/progress_window.h"
#include "numbers/text.h"

#include <fmt/format.h>

#include <chrono>
#include <csignal>
#include <ctime>
#include <unistd.h>

namespace dorvan::cli {

namespace {

constexpr int BarLength = 30; // characters

std::string OneLine(std::string_view text) { return ReplaceAll(ReplaceAll(text, "\r\n", " "), "\n", " "); }

std::string LineOf(const ProgressWindow& window) {
    const auto share = window.shareDone();
    if (!share) return window.onOneLine();
    const int length = static_cast<int>(*share * BarLength);
    return fmt::format("[{:=<{}}{:<{}}] {}", "", length, "", BarLength - length, window.onOneLine());
}

// Ctrl+C once asks a search to end early; a second one ends the process as usual.
volatile std::sig_atomic_t interrupted = 0;

void Interrupt(int) { interrupted = 1; }

void WatchForInterrupt() {
    interrupted = 0;
    struct sigaction action {};
    action.sa_handler = Interrupt;
    action.sa_flags = SA_RESETHAND;
    sigaction(SIGINT, &action, nullptr);
}

double SecondsOfDay() {
    timespec now{};
    clock_gettime(CLOCK_REALTIME, &now);
    tm local{};
    localtime_r(&now.tv_sec, &local);
    return local.tm_hour * 3600 + local.tm_min * 60 + local.tm_sec + static_cast<double>(now.tv_nsec) / 1e9;
}

double SteadySeconds() {
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

} // namespace

Answer CliPlatform::show(const Message& message) {
    messages.push_back(OneLine(message.Text));
    if (message.Buttons == MessageButtons::YesNo && answersYes) return Answer::Yes;
    if (message.Buttons != MessageButtons::Ok)
        throw Refusal("a question that nobody can answer: " + messages.back());
    return Answer::Ok;
}

void CliPlatform::showModal(Form& form) {
    form.Visible = true;
    form.Form_Show();
    const auto answer = answers_.find(typeid(form));
    if (answer != answers_.end()) answer->second(form);
    if (!form.Visible) return;
    const std::string reason =
        messages.empty() ? "the dialog " + form.Name + " has no answer" : messages.back();
    form.CancelCommand();
    throw Refusal(reason);
}

void CliPlatform::show(Form& form) {
    form.Visible = true;
    running_ = &form;
    onSearch();
    WatchForInterrupt();
}

// A bar in place, on a terminal only, at most ten times a second.
void CliPlatform::update(Form& form) {
    const double now = seconds();
    if (!isatty(STDERR_FILENO) || now - shownAt_ < 0.1) return;
    shownAt_ = now;
    if (const auto* window = dynamic_cast<const ProgressWindow*>(&form))
        fmt::print(stderr, "\r{}\x1b[K", LineOf(*window));
}

void CliPlatform::close(Form& form) {
    form.Visible = false;
    if (running_ != &form) return;
    running_ = nullptr;
    std::signal(SIGINT, SIG_DFL);
    if (shownAt_ > 0) fmt::print(stderr, "\r\x1b[K");
    shownAt_ = 0;
}

int CliPlatform::run() {
    if (interrupted && running_) running_->CancelCommand();
    return 1;
}

// The time of day is taken once; from then on a steady clock counts, past midnight too.
double CliPlatform::seconds() {
    static const double offset = SecondsOfDay() - SteadySeconds();
    return offset + SteadySeconds();
}

} // namespace dorvan::cli
