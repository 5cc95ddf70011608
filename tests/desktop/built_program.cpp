#include "built_program.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <thread>

#include <fcntl.h>
#include <poll.h>
#include <sys/inotify.h>
#include <sys/wait.h>
#include <unistd.h>

namespace dorvan::test {

namespace {

namespace fs = std::filesystem;

constexpr int Patience = 60; // seconds: other work may take the machine

std::vector<char*> Pointers(std::vector<std::string>& texts) {
    std::vector<char*> pointers;
    for (auto& text : texts) pointers.push_back(text.data());
    pointers.push_back(nullptr);
    return pointers;
}

std::vector<std::string> Environment(const BuiltProgram::Home& home,
                                     const std::vector<std::string>& settings) {
    std::vector<std::string> all = {"QT_QPA_PLATFORM=offscreen", "LC_ALL=C.UTF-8",
                                    "HOME=" + home.folder.path(), "XDG_CONFIG_HOME=" + home.folder / "config",
                                    "XDG_STATE_HOME=" + home.folder / "state"};
    for (const char* kept : {"PATH", "LOCPATH", "LD_LIBRARY_PATH", "ASAN_OPTIONS", "UBSAN_OPTIONS"})
        if (const char* value = std::getenv(kept)) all.push_back(std::string(kept) + "=" + value);
    // The later ones count: the first of equal names is found.
    all.insert(all.begin(), settings.begin(), settings.end());
    return all;
}

// Tells when somebody has read a file.
class ReadWatch {
public:
    explicit ReadWatch(const std::string& path) : watch_(::inotify_init1(IN_CLOEXEC)) {
        ::inotify_add_watch(watch_, path.c_str(), IN_CLOSE_NOWRITE);
    }
    ~ReadWatch() { ::close(watch_); }
    ReadWatch(const ReadWatch&) = delete;
    ReadWatch& operator=(const ReadWatch&) = delete;

    bool Wait() {
        pollfd waiting{watch_, POLLIN, 0};
        return ::poll(&waiting, 1, Patience * 1000) == 1;
    }

private:
    int watch_;
};

} // namespace

std::vector<std::string> BuiltProgram::Home::Journal() const {
    std::vector<std::string> files;
    std::error_code none; // the program may be at work on the folders
    for (fs::recursive_directory_iterator place(folder / "state/dorvan/journal", none), end;
         !none && place != end; place.increment(none))
        if (place->path().extension() == ".mdt") files.push_back(place->path());
    return files;
}

void BuiltProgram::Home::ExpectInJournal(std::size_t count) const {
    for (int look = 0; look < Patience * 50; ++look) {
        if (Journal().size() == count) return;
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
    }
    ADD_FAILURE() << Journal().size() << " documents in the journal, not " << count;
}

BuiltProgram::BuiltProgram(const Home& home, const std::vector<std::string>& arguments,
                           const std::vector<std::string>& environment)
    : errorPath_(home.folder / "standard error") {
    std::vector<std::string> words = {DORVAN_PROGRAM};
    words.insert(words.end(), arguments.begin(), arguments.end());
    std::vector<std::string> settings = Environment(home, environment);
    const auto wordPointers = Pointers(words);
    const auto settingPointers = Pointers(settings);
    ReadWatch read(arguments.empty() ? std::string() : arguments.back());
    process_ = ::fork();
    if (process_ == 0) {
        const int errors = ::open(errorPath_.c_str(), O_WRONLY | O_CREAT | O_APPEND, 0600);
        ::dup2(errors, STDERR_FILENO);
        ::execve(DORVAN_PROGRAM, wordPointers.data(), settingPointers.data());
        ::_exit(127);
    }
    if (!arguments.empty() && !read.Wait()) ADD_FAILURE() << "the program did not read its file";
}

BuiltProgram::~BuiltProgram() {
    if (process_ < 0) return;
    Send(SIGKILL);
    Status();
}

void BuiltProgram::Send(int signal) const {
    if (process_ > 0) ::kill(process_, signal);
}

bool BuiltProgram::Runs() const {
    siginfo_t news{};
    return process_ > 0 &&
           ::waitid(P_PID, static_cast<id_t>(process_), &news, WEXITED | WNOHANG | WNOWAIT) == 0 &&
           news.si_pid == 0;
}

std::size_t BuiltProgram::PeakOfMemory() const {
    const auto now = [this] {
        std::ifstream status("/proc/" + std::to_string(process_) + "/status");
        for (std::string line; std::getline(status, line);)
            if (line.starts_with("VmHWM:")) return std::size_t(std::stoull(line.substr(6))) * 1024;
        return std::size_t(0);
    };
    std::size_t peak = 0;
    for (int looks = 0; looks < 20; ++looks) { // two seconds without growth
        if (const std::size_t seen = now(); seen > peak) {
            peak = seen;
            looks = 0;
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(100));
    }
    return peak;
}

int BuiltProgram::Status() {
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(Patience);
    while (process_ > 0) {
        int status = 0;
        if (::waitpid(process_, &status, WNOHANG) == process_) {
            process_ = -1;
            status_ = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
        } else if (std::chrono::steady_clock::now() > end) {
            ADD_FAILURE() << "the program does not end: " << Errors();
            return -1;
        } else {
            std::this_thread::sleep_for(std::chrono::milliseconds(5));
        }
    }
    return status_;
}

std::string BuiltProgram::Errors() const { return fileBytes(errorPath_); }

std::vector<std::string> FilesIn(const std::string& folder) {
    std::vector<std::string> names;
    if (!fs::is_directory(folder)) return names;
    for (const auto& entry : fs::directory_iterator(folder)) names.push_back(entry.path().filename());
    std::sort(names.begin(), names.end());
    return names;
}

} // namespace dorvan::test
