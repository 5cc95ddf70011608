#include "desktop/journal_keeper.h"

#include "desktop/event_dispatch.h"
#include "session/registry.h"
#include "session/status_bar.h"

#include <QTimer>

#include <chrono>
#include <cstdio>
#include <exception>
#include <utility>

namespace dorvan {

namespace {

constexpr int MillisecondsBetweenTicks = 250; // the journal itself says when it looks

double SteadySeconds() {
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

// The journal is a help that must not get in the way: what it cannot do stands on the standard error.
template <class Piece> void Try(const Piece& piece) {
    try {
        piece();
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "dorvan: the journal: %s\n", failure.what());
    }
}

} // namespace

JournalKeeper::JournalKeeper(Session& session, EventDispatch& dispatch, const std::string& stateFolder)
    : session_(session), dispatch_(dispatch), folder_(stateFolder),
      journal_(folder_, [this](std::function<void()> piece) { Add(std::move(piece)); }),
      thread_([this] { Work(); }) {
    session_.onClosing = [this](const ChildWindow& window) {
        Try([&] { journal_.DocumentCloses(session_, window); });
    };
    session_.commands.Set("ReopenClosedDocument", [this](const CommandCall&) { Reopen(); });
    auto* timer = new QTimer(this);
    connect(timer, &QTimer::timeout, this, [this] {
        Try([this] { journal_.Look(session_, SteadySeconds()); });
        TellUnsaved();
    });
    timer->start(MillisecondsBetweenTicks);
}

JournalKeeper::~JournalKeeper() {
    session_.onClosing = nullptr;
    {
        const std::lock_guard lock(mutex_);
        ends_ = true;
    }
    changed_.notify_all();
    thread_.join();
}

// Of the active document, in the status bar.
void JournalKeeper::TellUnsaved() {
    const ChildWindow* window = session_.ActiveWindow;
    const bool unsaved = window && journal_.IsUnsaved(*window);
    std::string words;
    if (unsaved) words = IsUntitled(window->Caption) ? "Not saved in a file" : "Not held by its file";
    std::string& shown = session_.forms.Load<StatusBar>(session_).Unsaved.Caption;
    if (shown == words) return;
    shown = words;
    dispatch_.Mirror();
}

void JournalKeeper::Add(std::function<void()> piece) {
    {
        const std::lock_guard lock(mutex_);
        pieces_.push_back(std::move(piece));
    }
    changed_.notify_all();
}

void JournalKeeper::Work() {
    std::unique_lock lock(mutex_);
    for (;;) {
        changed_.wait(lock, [this] { return ends_ || !pieces_.empty(); });
        if (pieces_.empty()) return;
        const auto piece = std::move(pieces_.front());
        pieces_.pop_front();
        working_ = true;
        lock.unlock();
        Try(piece);
        lock.lock();
        working_ = false;
        changed_.notify_all();
    }
}

void JournalKeeper::WaitForAll() {
    std::unique_lock lock(mutex_);
    changed_.wait(lock, [this] { return pieces_.empty() && !working_; });
}

void JournalKeeper::OfferLeftDocuments() {
    WaitForAll();
    dispatch_.Run([this] { Try([this] { dorvan::OfferLeftDocuments(session_, folder_, journal_); }); });
}

void JournalKeeper::Reopen() {
    WaitForAll();
    Try([this] { ReopenClosedDocument(session_, folder_, journal_); });
}

void JournalKeeper::EndCleanly() {
    journal_.EndCleanly(session_);
    WaitForAll();
}

} // namespace dorvan
