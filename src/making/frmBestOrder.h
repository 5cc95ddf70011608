#pragma once

#include "making/best_order.h"
#include "making/progress_window.h"
#include "session/session.h"

namespace dorvan {

// The progress of the search for the best order.
class frmBestOrder : public ProgressWindow {
public:
    explicit frmBestOrder(Session& session);

    Bar Procent{"Procent", TrackWidth};
    Bar Procent1{"Procent1", 0}; // grows over Procent
    Label Label1{"Label1", "2-SUM / n² ="};
    Label lblCriterion{"lblCriterion"};
    CommandButton Command1{"Command1", "Cancel"};

    bool Cancelled = false;

    void ShowProgress(const BestOrderProgress& progress);

    std::string onOneLine() const override;
    std::optional<double> shareDone() const override { return Procent1.Width / Procent.Width; }

    // Asks the search to end with the best order so far, and closes the window.
    void Command1_Click();
    void CancelCommand() override { Command1_Click(); }

private:
    static constexpr int TrackWidth = 4500; // twips

    Session& session_;
};

} // namespace dorvan
