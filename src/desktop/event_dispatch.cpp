#include "desktop/event_dispatch.h"

#include "numbers/runtime_failure.h"

#include <algorithm>
#include <exception>
#include <new>

namespace dorvan {

namespace {

// Mirroring can cause events whose handlers change the state once more; a state that never settles must not
// hang the program.
constexpr int MostMirrorRounds = 8;

struct Deeper {
    explicit Deeper(int& depth) : depth_(depth) { ++depth_; }
    ~Deeper() { --depth_; }
    Deeper(const Deeper&) = delete;
    Deeper& operator=(const Deeper&) = delete;
    int& depth_;
};

} // namespace

void EventDispatch::Run(const Handler& handler) {
    RunWaiting();
    RunNow(handler);
}

void EventDispatch::Later(QObject* owner, Handler handler) {
    waiting_.push_back({owner, std::move(handler)});
    QMetaObject::invokeMethod(
        &poster_, [this] { RunWaiting(); }, Qt::QueuedConnection);
}

void EventDispatch::RunWaiting() {
    while (!waiting_.empty()) {
        const WaitingEntry next = std::move(waiting_.front());
        waiting_.pop_front();
        if (next.owner) RunNow(next.handler);
    }
}

void EventDispatch::RunNow(const Handler& handler) {
    {
        const Deeper deeper(depth_);
        try {
            handler();
            Mirror();
        } catch (const std::bad_alloc&) {
            if (!onEnd) throw;
            onEnd(RuntimeFailure(Failure::OutOfMemory).what());
        } catch (const std::exception& failure) {
            if (!onEnd) throw;
            onEnd(failure.what());
        }
    }
    if (afterEvent) afterEvent();
}

void EventDispatch::AddMirror(QObject* owner, Handler mirror) {
    std::erase_if(mirrors_, [](const MirrorEntry& entry) { return entry.owner.isNull(); });
    mirrors_.push_back({owner, std::move(mirror)});
}

void EventDispatch::Mirror() {
    mirrorAgain_ = true;
    if (mirroring_) return;
    mirroring_ = true;
    for (int round = 0; mirrorAgain_ && round < MostMirrorRounds; ++round) {
        mirrorAgain_ = false;
        const auto mirrors = mirrors_; // a mirror may open or close a face
        for (const auto& entry : mirrors)
            if (entry.owner) entry.mirror();
    }
    mirroring_ = false;
}

} // namespace dorvan
