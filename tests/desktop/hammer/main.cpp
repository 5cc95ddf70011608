// The hammer: random keys, clicks and window operations on the whole program, for a while.
//
//   test_hammer [--seconds N] [--seed N] [--actions N] [--lists FOLDER] [--keep 1]
//   test_hammer --replay LIST
//
// Each round is a run of the program of its own, with the next seed, in a process of its own, so that an end
// of one is seen from outside. The list of its actions is kept for a round that ended badly, and replays.
#include "desktop/journal_keeper.h"
#include "desktop/qt_text.h"
#include "hammer/user.h"
#include "support/golden.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QSettings>
#include <QTemporaryDir>
#include <QThread>
#include <QTimer>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <sys/wait.h>
#include <unistd.h>

namespace {

using namespace dorvan;
using namespace dorvan::test;

constexpr int EndedByDesign = 42; // a run-time failure that the program announces
constexpr int Complained = 43;
constexpr int LongestAction = 60; // seconds
constexpr auto LongestReturn = std::chrono::seconds(5);

struct Options {
    int seconds = 30;
    int actions = 1500; // of a round
    unsigned seed = 1;
    std::string lists = std::filesystem::current_path();
    std::string replay;
    bool keep = false;                         // the lists of all rounds
    std::chrono::steady_clock::time_point end; // also of the round that is under way then
};

[[noreturn]] void EndRound(int status, const std::string& why) {
    std::fprintf(stderr, "%s\n", why.c_str());
    std::fflush(nullptr);
    std::_Exit(status);
}

std::vector<Action> ListOf(const std::string& path) {
    std::vector<Action> actions;
    std::ifstream file(path);
    for (std::string line; std::getline(file, line);)
        if (const auto action = Action::Parse(line)) actions.push_back(*action);
    return actions;
}

// One run of the program.
class Round {
public:
    // `folder`: empty, for all that the run writes.
    Round(const Options& options, const std::string& folder, const std::string& list)
        : options_(options), files_(CopyOfSamples(folder)), desktop_(files_),
          user_(desktop_, files_, options.seed), replay_(ListOf(options.replay)),
          list_(options.replay.empty() ? list : "/dev/null") {
        desktop_.dispatch.onEnd = [](const std::string& what) {
            const bool announced = what.starts_with("Run-time error");
            EndRound(announced ? EndedByDesign : Complained, "end of the run: " + what);
        };
        desktop_.dispatch.afterEvent = [this] {
            if (desktop_.shell.EndOfRun()) EndRound(EXIT_SUCCESS, "exit");
        };
        desktop_.mainWindow->resize(1366, 768);
        desktop_.mainWindow->show();
        QApplication::setActiveWindow(desktop_.mainWindow.get());
    }

    void Run() {
        Arm();
        QApplication::exec();
    }

private:
    static std::string CopyOfSamples(const std::string& folder) {
        setenv("HOME", folder.c_str(), 1);
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, ToQt(folder));
        const std::string copy = folder + "/files";
        std::filesystem::copy(sourcePath("samples"), copy);
        for (const auto* name : {"towns.mtx", "towns.dgr"})
            std::filesystem::copy(sourcePath("tests/desktop/journey/golden/") + name, copy);
        const auto seed = [&](const char* from, const char* name) {
            std::filesystem::copy(sourcePath("fuzz/seeds/") + from, copy + "/" + name);
        };
        seed("text_table/named.csv", "table.csv");
        seed("text_matrix/named.txt", "square.txt");
        seed("dbase_table/counties.dbf", "table.dbf");
        return copy;
    }

    // Armed before the action: what it opens is answered by the next one.
    void Arm(int pause = 0) {
        QTimer::singleShot(pause, &timers_, [this] { Step(); });
    }

    // A dialog or menu that has closed and has yet to return: its loop stands below this call. No user is
    // quick enough to act then.
    static bool ADialogHasYetToReturn() {
        if (QApplication::activePopupWidget()) return false; // some have a loop of their own
        const auto tops = QApplication::topLevelWidgets();
        const auto open = std::count_if(
            tops.begin(), tops.end(), [](const QWidget* top) { return top->isVisible() && top->isModal(); });
        return QThread::currentThread()->loopLevel() > 1 + int(open);
    }

    void Step() {
        // One whose loop another dialog keeps from its return is left behind in the end.
        const auto now = std::chrono::steady_clock::now();
        if (!ADialogHasYetToReturn()) waitsSince_ = now;
        if (now - waitsSince_ > std::chrono::milliseconds(0) && now - waitsSince_ < LongestReturn)
            return Arm();
        waitsSince_ = now;
        QCoreApplication::sendPostedEvents(); // what the last one left to be done later
        desktop_.dispatch.RunWaiting();
        if (const std::string complaint = user_.Complaint(); !complaint.empty())
            EndRound(Complained, complaint);
        const std::size_t most = replay_.empty() ? std::size_t(options_.actions) : replay_.size();
        const bool late = replay_.empty() && std::chrono::steady_clock::now() > options_.end;
        if (late || done_ >= most) EndRound(EXIT_SUCCESS, "");
        const Action action = replay_.empty() ? user_.Next() : replay_[done_];
        ++done_;
        list_ << action.Line() << std::endl;
        if (!options_.replay.empty()) std::fprintf(stderr, "%s\n", action.Line().c_str());
        ::alarm(LongestAction);
        Arm(user_.Pause(action));
        user_.Do(action);
    }

    const Options& options_;
    std::string files_;
    Desktop desktop_;
    JournalKeeper journal_{desktop_.session, desktop_.dispatch, files_ + "/../state"};
    User user_;
    std::vector<Action> replay_;
    std::ofstream list_;
    std::size_t done_ = 0;
    std::chrono::steady_clock::time_point waitsSince_ = std::chrono::steady_clock::now();
    QObject timers_;
};

int RunRound(const Options& options, const std::string& folder, const std::string& list) {
    int count = 1;
    char name[] = "hammer";
    char* arguments[] = {name, nullptr};
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    const QApplication application(count, arguments);
    Round(options, folder, list).Run();
    return EXIT_SUCCESS;
}

int InProcess(const Options& options, const std::string& list) {
    const QTemporaryDir folder;
    const pid_t process = ::fork();
    if (process == 0) std::_Exit(RunRound(options, folder.path().toStdString(), list));
    int status = 0;
    ::waitpid(process, &status, 0);
    return status;
}

Options Read(int count, char** arguments) {
    Options options;
    for (int place = 1; place + 1 < count; place += 2) {
        const std::string name = arguments[place];
        const char* value = arguments[place + 1];
        if (name == "--seconds") options.seconds = std::atoi(value);
        if (name == "--actions") options.actions = std::atoi(value);
        if (name == "--seed") options.seed = unsigned(std::atoi(value));
        // Absolute: the program changes its current folder.
        if (name == "--lists") options.lists = std::filesystem::absolute(value);
        if (name == "--keep") options.keep = std::atoi(value) != 0;
        if (name == "--replay") options.replay = std::filesystem::absolute(value);
    }
    return options;
}

} // namespace

int main(int count, char** arguments) {
    Options options = Read(count, arguments);
    if (!options.replay.empty()) return RunRound(options, QTemporaryDir().path().toStdString(), {});
    QElapsedTimer time;
    time.start();
    options.end = std::chrono::steady_clock::now() + std::chrono::seconds(options.seconds);
    std::size_t actions = 0;
    int rounds = 0;
    int designed = 0;
    int bad = 0;
    for (; time.elapsed() < options.seconds * 1000; ++rounds, ++options.seed) {
        const std::string list = options.lists + "/hammer-" + std::to_string(options.seed) + ".actions";
        const int status = InProcess(options, list);
        actions += ListOf(list).size();
        if (WIFEXITED(status) && WEXITSTATUS(status) == EndedByDesign) ++designed;
        if (WIFEXITED(status) &&
            (WEXITSTATUS(status) == EXIT_SUCCESS || WEXITSTATUS(status) == EndedByDesign)) {
            if (!options.keep) std::filesystem::remove(list);
            continue;
        }
        ++bad;
        std::printf("seed %u: %s %d after %zu actions; replay %s\n", options.seed,
                    WIFSIGNALED(status) ? "signal" : "status",
                    WIFSIGNALED(status) ? WTERMSIG(status) : WEXITSTATUS(status), ListOf(list).size(),
                    list.c_str());
        std::fflush(stdout);
    }
    std::printf("%zu actions in %d rounds; %d announced ends, %d bad ones\n", actions, rounds, designed, bad);
    return bad == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
