#include "desktop/end_of_run.h"

#include "desktop/qt_text.h"
#include "program/rescue.h"

#include <QApplication>
#include <QDateTime>
#include <QMessageBox>
#include <QSessionManager>
#include <QSocketNotifier>
#include <QStandardPaths>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>

#include <fcntl.h>
#include <unistd.h>

namespace dorvan {

namespace {

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
    for (const int number : {SIGTERM, SIGHUP}) ::sigaction(number, &action, nullptr);
}

[[noreturn]] void EndProcess(int status) {
    std::fflush(nullptr);
    std::_Exit(status);
}

} // namespace

EndOfRun::EndOfRun(const Session& session) : session_(session) {
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
    for (int& end : signalPipe) {
        if (end >= 0) ::close(end);
        end = -1;
    }
}

std::string EndOfRun::Rescue() {
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    const QString time = QDateTime::currentDateTime().toString("yyyy-MM-dd hh-mm-ss");
    const std::string text = RescueText(RescueDocuments(session_, FromQt(documents), FromQt(time)));
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
        if (!rescued.empty()) box.setInformativeText(ToQt(rescued));
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

} // namespace dorvan
