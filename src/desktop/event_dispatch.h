#pragma once

#include <QPointer>

#include <functional>
#include <string>
#include <vector>

class QObject;

namespace dorvan {

// Every event of a widget passes through here: its handler runs, then all faces mirror the state of their
// windows again. A failure that a handler lets out ends the run.
class EventDispatch {
public:
    using Handler = std::function<void()>;

    void Run(const Handler& handler);

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

    std::vector<MirrorEntry> mirrors_;
    int depth_ = 0;
    bool mirroring_ = false;
    bool mirrorAgain_ = false;
};

} // namespace dorvan
