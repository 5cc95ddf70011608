#include "making/ordering_runs.h"

#include "making/frmGenetic.h"
#include "making/frmGeneticUM.h"
#include "making/frmWork.h"
#include "making/frmWorkUM.h"
#include "making/genetic_ordering.h"
#include "making/ravelin_ordering.h"

#include <algorithm>
#include <utility>

namespace dorvan {

namespace {

constexpr double SecondsBetweenPaintings = 1.0 / 60;
constexpr double ShortTime = 0.0005; // seconds from one look at the clock to the next
constexpr int LongestStride = 16;

template <class Dialog> void AskOptions(Session& session) {
    session.platform.forms.showModal(session.forms.Load<Dialog>(session));
}

// The progress window of one run, on the screen for as long as it lives.
template <class Window> class Watch {
public:
    explicit Watch(Session& session)
        : session_(session), window_(session.forms.Load<Window>(session)), start_(Now()) {
        session_.platform.forms.show(window_);
    }
    ~Watch() {
        if (window_.Visible) session_.platform.forms.close(window_);
        session_.forms.Unload<Window>();
    }
    Watch(const Watch&) = delete;
    Watch& operator=(const Watch&) = delete;

    Window& window() { return window_; }

    // Lets events run, after the window was brought up to date where that is due.
    template <class Progress> int Yield(Progress& progress) {
        if (progress.Generation != decltype(progress.Generation){} && IsDue()) {
            window_.ShowProgress(progress, static_cast<float>(lookedAt_) - start_);
            progress.TimeDue = false;
            Update();
        }
        return session_.platform.events.run();
    }

    void Update() {
        if (window_.Visible) session_.platform.forms.update(window_);
    }

private:
    float Now() { return static_cast<float>(session_.platform.clock.seconds()); }

    // Where yields follow each other closely, the clock is looked at in some of them only.
    bool IsDue() {
        if (++passed_ < stride_) return false;
        passed_ = 0;
        const double now = session_.platform.clock.seconds();
        stride_ = now - lookedAt_ < ShortTime ? std::min(2 * stride_, LongestStride) : 1;
        lookedAt_ = now;
        if (painted_ && now - paintedAt_ < SecondsBetweenPaintings) return false;
        painted_ = true;
        paintedAt_ = now;
        return true;
    }

    Session& session_;
    Window& window_;
    float start_; // of the clock, in seconds
    double lookedAt_ = 0;
    int passed_ = 0; // yields since the last look
    int stride_ = 1; // yields from one look to the next
    bool painted_ = false;
    double paintedAt_ = 0;
};

Order RunSimpleGenetic(Session& session, const FloatTable& distances) {
    Watch<frmWork> watch(session);
    auto found = SimpleGeneticOrder(distances, session.ordering, session.random,
                                    [&watch](GeneticProgress& progress) { return watch.Yield(progress); });
    watch.window().ShowEnd();
    watch.Update();
    return std::move(found.BestOrder);
}

Order RunRavelin(Session& session, const FloatTable& distances) {
    Watch<frmWorkUM> watch(session);
    const RavelinHooks hooks{.yield = [&watch](RavelinProgress& progress) { return watch.Yield(progress); },
                             .invalidMinimum =
                                 [&session] {
                                     session.platform.signals.beep();
                                     session.platform.messages.show({.Text = "Error - Min invalid value"});
                                 },
                             .decimalSeparator = session.DecimalSeparator};
    return RavelinOrder(distances, session.ordering, session.random, hooks).BestOrder;
}

} // namespace

void AddGeneticOrderings(Session& session) {
    session.orderingMethods[3] = {.askOptions = AskOptions<frmGenetic>, .run = RunSimpleGenetic};
    session.orderingMethods[4] = {.askOptions = AskOptions<frmGeneticUM>, .run = RunRavelin};
}

} // namespace dorvan
