#pragma once

#include <QObject>
#include <QPointer>

#include <deque>
#include <functional>
#include <string>
#include <vector>

namespace dorvan {

// Every event of a widget passes through here: its handler runs, then all faces mirror the state of their
// windows again. A failure that a handler lets out ends the run.
class EventDispatch {
public:
    using Handler = std::function<void()>;

    // What the user does. What waits comes first.
    void Run(const Handler& handler);

    // What the toolkit reports in the midst of its own work: a focus, a size, a state of a window that has
    // changed. Whoever moves the focus or shows a window from inside such a report makes it report again, and
    // so on without an end; the handler runs once that work is done, unless `owner` has gone by then.
    void Later(QObject* owner, Handler handler);
    void RunWaiting();

    // `mirror` runs after each event for as long as `owner` lives.
    void AddMirror(QObject* owner, Handler mirror);
    void Mirror();

    // Handlers that have not returned yet. Above 1 an event arrived during another one's work.
    int Depth() const { return depth_; }

    Handler afterEvent;                                 // looks whether the run has to end
    std::function<void(const std::string& what)> onEnd; // what ends the run; it should not return

private:
    struct MirrorEntry {
        QPointer<QObject> owner;
        Handler mirror;
    };

    struct WaitingEntry {
        QPointer<QObject> owner;
        Handler handler;
    };

    void RunNow(const Handler& handler);

    std::vector<MirrorEntry> mirrors_;
    std::deque<WaitingEntry>
        waiting_; // first in, first out; a handler that lets events run lets them run too
    QObject poster_;
    int depth_ = 0;
    bool mirroring_ = false;
    bool mirrorAgain_ = false;
};

} // namespace dorvan
