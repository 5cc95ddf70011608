#include "making/ordering_runs.h"

#include "making/frmGenetic.h"
#include "making/frmGeneticUM.h"
#include "making/frmWork.h"
#include "making/frmWorkUM.h"
#include "making/genetic_ordering.h"
#include "making/ordering_method.h"
#include "making/ordering_options.h"
#include "making/paint_pace.h"
#include "making/ravelin_ordering.h"
#include "session/dialog.h"
#include "session/status_bar.h"

#include <utility>

namespace dorvan {

namespace {

// The progress window of one run, on the screen for as long as it lives.
template <class Window> class Watch {
public:
    explicit Watch(Session& session)
        : session_(session), window_(session.forms.Load<Window>(session)), start_(Now()),
          pace_(session.platform.clock) {
        session_.platform.forms.show(window_);
    }
    ~Watch() {
        if (window_.Visible) session_.platform.forms.close(window_);
        session_.forms.Unload<Window>();
    }
    Watch(const Watch&) = delete;
    Watch& operator=(const Watch&) = delete;

    Window& window() { return window_; }

    // Lets events run, after the window was brought up to date where that is due; before the first generation
    // there is nothing to show.
    template <class Progress> int Yield(Progress& progress) {
        if (progress.Generation != decltype(progress.Generation){} && pace_.Due()) {
            window_.ShowProgress(progress, static_cast<float>(pace_.Now()) - start_);
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

    Session& session_;
    Window& window_;
    float start_; // of the clock, in seconds
    PaintPace pace_;
};

Order RunSimpleGenetic(Session& session, const FloatTable& distances) {
    Watch<frmWork> watch(session);
    auto found = SimpleGeneticOrder(distances, session.Of<OrderingOptions>(), session.random,
                                    [&watch](GeneticProgress& progress) { return watch.Yield(progress); });
    watch.window().ShowEnd();
    watch.Update();
    return std::move(found.BestOrder);
}

constexpr const char* OrderOfTheSheet = "The order of the sheet was kept: no generation beat the first; try "
                                        "another seed or coefficient";

Order RunRavelin(Session& session, const FloatTable& distances) {
    Watch<frmWorkUM> watch(session);
    const RavelinHooks hooks{.yield = [&watch](RavelinProgress& progress) { return watch.Yield(progress); },
                             .invalidMinimum =
                                 [&session] {
                                     session.platform.signals.beep();
                                     session.platform.messages.show({.Text = "Error - Min invalid value"});
                                 },
                             .decimalSeparator = session.DecimalSeparator};
    FoundOrder found = RavelinOrder(distances, session.Of<OrderingOptions>(), session.random, hooks);
    StatusText(session) = found.BetterWasSeen ? OrderOfTheSheet : "";
    return std::move(found.BestOrder);
}

} // namespace

void AddGeneticOrderings(Session& session) {
    auto& methods = session.Of<OrderingMethods>();
    methods[3] = {.askOptions = ShowModally<frmGenetic>, .run = RunSimpleGenetic};
    methods[4] = {.askOptions = ShowModally<frmGeneticUM>, .run = RunRavelin};
}

} // namespace dorvan
