#include "desktop/end_of_run.h"

#include "desktop/qt_text.h"

#include <QApplication>
#include <QDir>
#include <QMessageBox>
#include <QSessionManager>
#include <QSocketNotifier>
#include <QStandardPaths>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <ctime>

#include <fcntl.h>
#include <unistd.h>

namespace dorvan {

namespace {

constexpr std::array Asked = {SIGTERM, SIGHUP, SIGINT, SIGQUIT};
constexpr std::array ErrorsOfAWrite = {SIGPIPE, SIGXFSZ};
constexpr std::size_t ReserveSize = std::size_t(16) << 20;

int signalPipe[2] = {-1, -1};

// Only what a signal handler may do: it passes the number on to the event loop.
void PassOn(int number) {
    const int savedError = errno;
    const auto byte = static_cast<unsigned char>(number);
    [[maybe_unused]] const auto written = ::write(signalPipe[1], &byte, 1);
    errno = savedError;
}

void HandleBy(void (*handler)(int)) {
    struct sigaction action {};
    action.sa_handler = handler;
    ::sigemptyset(&action.sa_mask);
    action.sa_flags = SA_RESTART;
    for (const int number : Asked) ::sigaction(number, &action, nullptr);
}

const std::string ProgramCloses = "The program closes now.";

[[noreturn]] void EndProcess(int status) {
    std::fflush(nullptr);
    std::_Exit(status);
}

// Not by the toolkit: a crash may leave it unable to answer.
std::string LocalTime() {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    ::localtime_r(&now, &local);
    char text[32] = {};
    std::strftime(text, sizeof text, "%Y-%m-%d %H-%M-%S", &local);
    return text;
}

} // namespace

EndOfRun::EndOfRun(const Session& session)
    : session_(session),
      folders_(RescueFoldersOf(FromQt(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)),
                               StateFolder())),
      reserve_(new char[ReserveSize]), crashes_([this] { Rescue(); }) {
    for (const int number : ErrorsOfAWrite) ::signal(number, SIG_IGN);
    if (::pipe2(signalPipe, O_CLOEXEC | O_NONBLOCK) == 0) {
        auto* notifier = new QSocketNotifier(signalPipe[0], QSocketNotifier::Read, this);
        connect(notifier, &QSocketNotifier::activated, this, [this] { OnSignal(); });
        HandleBy(PassOn);
    }
    connect(
        qApp, &QGuiApplication::commitDataRequest, this, [this](QSessionManager&) { Rescue(); },
        Qt::DirectConnection);
}

EndOfRun::~EndOfRun() {
    HandleBy(SIG_DFL);
    for (const int number : ErrorsOfAWrite) ::signal(number, SIG_DFL);
    for (int& end : signalPipe) {
        if (end >= 0) ::close(end);
        end = -1;
    }
}

std::string EndOfRun::Rescue() {
    reserve_.reset();
    const std::string text = RescueText(RescueDocuments(session_, folders_, LocalTime()));
    if (!text.empty()) std::fprintf(stderr, "dorvan: %s\n", text.c_str());
    return text;
}

void EndOfRun::OnFailure(const std::string& what) {
    std::fprintf(stderr, "dorvan: %s\n", what.c_str());
    if (!ending_) {
        ending_ = true;
        const std::string rescued = Rescue();
        while (QApplication::overrideCursor()) QApplication::restoreOverrideCursor();
        QMessageBox box(QMessageBox::Critical, "Dorvan", ToQt(what), QMessageBox::Ok);
        box.setObjectName("FailureBox");
        box.setTextFormat(Qt::PlainText);
        box.setInformativeText(ToQt(rescued.empty() ? ProgramCloses : ProgramCloses + "\n\n" + rescued));
        box.exec();
    }
    EndProcess(EXIT_FAILURE);
}

// Nobody may be there to answer a box: where the copies are goes to the standard error alone.
void EndOfRun::OnSignal() {
    unsigned char number = 0;
    if (::read(signalPipe[0], &number, 1) != 1) return;
    Rescue();
    EndProcess(128 + number);
}

std::string StateFolder() {
    const QString asked = qEnvironmentVariable("XDG_STATE_HOME");
    const QString folder = QDir::isAbsolutePath(asked) ? asked : QDir::homePath() + "/.local/state";
    return FromQt(folder + "/dorvan");
}

} // namespace dorvan
