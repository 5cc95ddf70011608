#include "making/best_order_run.h"

#include "making/attractions.h"
#include "making/frmBestOrder.h"
#include "making/paint_pace.h"
#include "numbers/number_text.h"
#include "session/busy.h"
#include "session/status_bar.h"
#include "view/frmDiagram.h"

#include <fmt/format.h>

#include <cmath>

namespace dorvan {

namespace {

constexpr double SecondsUnseen = 0.3;
constexpr std::uint64_t Seed = 1; // the same every time: a repeated command finds what it found

// `DiagramBusy` at 1 for as long as it lives.
class Busy {
public:
    explicit Busy(Session& session) : session_(session) { session_.DiagramBusy = 1; }
    ~Busy() { session_.DiagramBusy = 0; }
    Busy(const Busy&) = delete;
    Busy& operator=(const Busy&) = delete;

private:
    Session& session_;
};

// The progress window of one search.
class Progress {
public:
    Progress(Session& session, double secondsUnseen)
        : session_(session), window_(session.forms.Load<frmBestOrder>(session)),
          pace_(session.platform.clock), start_(session.platform.clock.seconds()),
          secondsUnseen_(secondsUnseen) {
        if (secondsUnseen <= 0) Show();
    }
    ~Progress() {
        if (window_.Visible) session_.platform.forms.close(window_);
        session_.forms.Unload<frmBestOrder>();
    }
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;

    // False once the search is to end. Midnight turns the clock back.
    bool Tell(const BestOrderProgress& progress) {
        if (!pace_.Due()) return true;
        if (!shown_ && std::fabs(pace_.Now() - start_) >= secondsUnseen_) Show();
        if (!shown_) return true;
        window_.ShowProgress(progress);
        session_.platform.forms.update(window_);
        return session_.platform.events.run() != 0 && !window_.Cancelled;
    }

private:
    void Show() {
        shown_ = true;
        session_.platform.forms.show(window_);
    }

    Session& session_;
    frmBestOrder& window_;
    PaintPace pace_;
    double start_; // of the clock, in seconds
    double secondsUnseen_;
    bool shown_ = false;
};

FloatTable DistancesOf(const DiagramDocument& document) {
    const std::int32_t n = document.RecCount;
    FloatTable distances(n, n);
    for (std::int32_t i = 1; i <= n; ++i)
        for (std::int32_t j = 1; j <= n; ++j) distances(i, j) = document.Matrix(i, j);
    return distances;
}

std::string Told(double before, double after, char separator) {
    if (before == after)
        return fmt::format("No better order was found: 2-SUM / n² = {}", CriterionText(after, separator));
    return fmt::format("Best order: 2-SUM / n² = {} before, {} after", CriterionText(before, separator),
                       CriterionText(after, separator));
}

} // namespace

bool HasCriterion(const DiagramDocument& document) {
    try {
        TwoSumOfOrder(DistancesOf(document));
        return true;
    } catch (const RuntimeFailure&) {
        return false;
    }
}

std::string CriterionText(double criterion, char decimalSeparator) {
    return FormatPattern(criterion, "###0.0000", decimalSeparator);
}

Order SearchBehindWindow(Session& session, const DiagramDocument& document, std::uint64_t seed,
                         double secondsUnseen) {
    const Busy busy(session);
    Progress window(session, secondsUnseen);
    return BestOrder(DistancesOf(document), seed,
                     [&window](const BestOrderProgress& progress) { return window.Tell(progress); });
}

void PutInBestOrder(Session& session, std::int16_t slot) {
    if (RefusedWhileBusy(session)) return;
    auto& window = DiagramWindow(session, slot);
    if (!HasCriterion(window.Document())) {
        session.platform.messages.show({.Text = WithoutCriterion, .Icon = MessageIcon::Critical});
        return;
    }
    const double before = TwoSumOfOrder(DistancesOf(window.Document()));
    const Order order = SearchBehindWindow(session, window.Document(), Seed, SecondsUnseen);
    if (session.DiagramStates.at(std::size_t(slot)).Deleted) return; // closed meanwhile
    window.TakeOrder(order);
    StatusText(session) =
        Told(before, TwoSumOfOrder(DistancesOf(window.Document())), session.DecimalSeparator);
}

} // namespace dorvan
