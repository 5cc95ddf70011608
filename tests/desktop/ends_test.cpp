#include "built_program.h"

#include "support/golden.h"

#include <array>
#include <chrono>
#include <csignal>
#include <filesystem>
#include <optional>
#include <thread>

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

// How the built program ends, and what is left of a document that no file holds.
namespace dorvan::test {
namespace {

const std::string Sheet =
    "Dorvan DATA 3.3\r\n\r\n[HEADER]\r\nDescription=one\r\nRecCount=1\r\nVarCount=1\r\n\r\n"
    "[RECORD_LABEL]\r\na\r\n\r\n[VARIABLE_LABEL]\r\nx\r\n\r\n[DATA]\r\n1.500\r\n";

// A run with one open sheet that no file holds any more.
class EndsTest : public ::testing::Test {
protected:
    void Start(const std::vector<std::string>& environment = {}) {
        writeFile(file, Sheet);
        program.emplace(home, std::vector<std::string>{file}, environment);
        std::filesystem::remove(file);
    }

    // Every byte of the sheet is in a copy, and in no more than one.
    void ExpectRescued() {
        const auto copies = FilesIn(home.Rescued());
        ASSERT_EQ(copies.size(), 1u) << program->Errors();
        EXPECT_EQ(fileBytes(home.Rescued() + "/" + copies[0]), Sheet);
    }

    BuiltProgram::Home home;
    std::string file = home.folder / "one.mdt";
    std::optional<BuiltProgram> program;
};

class AskedToEnd : public EndsTest, public ::testing::WithParamInterface<int> {};

TEST_P(AskedToEnd, RescuesAndEndsWithTheSignalsStatus) {
    Start();
    program->Send(GetParam());
    EXPECT_EQ(program->Status(), 128 + GetParam());
    ExpectRescued();
}

INSTANTIATE_TEST_SUITE_P(Signals, AskedToEnd, ::testing::Values(SIGTERM, SIGHUP, SIGINT, SIGQUIT));

class Crashes : public EndsTest, public ::testing::WithParamInterface<int> {};

TEST_P(Crashes, RescueInACopyOfTheProcessAndEndByTheSignal) {
    Start();
    home.ExpectInJournal(1); // the sheet is open
    program->Send(GetParam());
    EXPECT_EQ(program->Status(), 128 + GetParam());
    ExpectRescued();
}

INSTANTIATE_TEST_SUITE_P(Signals, Crashes, ::testing::Values(SIGSEGV, SIGABRT, SIGBUS, SIGFPE, SIGILL));

TEST_F(EndsTest, ABrokenPipeAndALimitOfFilesEndNothing) {
    Start();
    home.ExpectInJournal(1);
    for (const int number : {SIGPIPE, SIGXFSZ}) program->Send(number);
    std::this_thread::sleep_for(std::chrono::milliseconds(200));
    EXPECT_TRUE(program->Runs());
    program->Send(SIGTERM);
    EXPECT_EQ(program->Status(), 128 + SIGTERM);
    ExpectRescued();
}

// An X server of its own, without which the test is skipped.
class Screen {
public:
    Screen() {
        int ends[2];
        if (::pipe(ends) != 0) return;
        process_ = ::fork();
        if (process_ == 0) {
            ::dup2(ends[1], 3);
            const int nowhere = ::open("/dev/null", O_WRONLY);
            ::dup2(nowhere, STDERR_FILENO);
            ::execlp("Xvfb", "Xvfb", "-displayfd", "3", "-screen", "0", "800x600x24", nullptr);
            ::_exit(127);
        }
        ::close(ends[1]);
        char sign = 0;
        while (::read(ends[0], &sign, 1) == 1 && sign != '\n') number_ += sign;
        ::close(ends[0]);
    }
    ~Screen() { End(); }
    Screen(const Screen&) = delete;
    Screen& operator=(const Screen&) = delete;

    bool Found() const { return !number_.empty(); }
    std::string Setting() const { return "DISPLAY=:" + number_; }
    void End() {
        if (process_ <= 0) return;
        ::kill(process_, SIGKILL);
        ::waitpid(process_, nullptr, 0);
        process_ = -1;
    }

private:
    pid_t process_ = -1;
    std::string number_;
};

TEST_F(EndsTest, ALostScreenRescues) {
    Screen screen;
    if (!screen.Found()) GTEST_SKIP() << "there is no Xvfb";
    Start({screen.Setting(), "QT_QPA_PLATFORM=xcb"});
    home.ExpectInJournal(1);
    screen.End();
    EXPECT_NE(program->Status(), 0);
    ExpectRescued();
}

TEST_F(EndsTest, AKilledRunLeavesTheJournal) {
    Start();
    home.ExpectInJournal(1);
    program->Send(SIGKILL);
    EXPECT_EQ(program->Status(), 128 + SIGKILL);
    EXPECT_TRUE(FilesIn(home.Rescued()).empty());
    ASSERT_EQ(home.Journal().size(), 1u);
    EXPECT_EQ(fileBytes(home.Journal()[0]), Sheet);
}

// Read-only documents and a state folder in the way of nothing: the second folder takes the copies.
TEST_F(EndsTest, WhereTheDocumentsFolderCannotBeMadeTheStateFolderTakesTheCopies) {
    writeFile(home.folder / "Documents", "a file in the way");
    Start();
    program->Send(SIGTERM);
    EXPECT_EQ(program->Status(), 128 + SIGTERM);
    const std::string second = home.folder / "state/dorvan/rescued";
    const auto copies = FilesIn(second);
    ASSERT_EQ(copies.size(), 1u) << program->Errors();
    EXPECT_EQ(fileBytes(second + "/" + copies[0]), Sheet);
}

} // namespace
} // namespace dorvan::test
