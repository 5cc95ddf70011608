#pragma once

#include "making/genetic_ordering.h"
#include "making/progress_window.h"
#include "session/session.h"

namespace dorvan {

// The progress of the simple genetic ordering.
class frmWork : public ProgressWindow {
public:
    explicit frmWork(Session& session);

    Label InfoString{"InfoString", "0 %"};
    Bar Procent{"Procent", TrackWidth};
    Bar Procent1{"Procent1", 0}; // grows over Procent
    Label Label1{"Label1", "Time:"};
    Label InfoTime{"InfoTime"};
    Label Label2{"Label2", "F ="};
    Label lblFunkcja{"lblFunkcja"};
    CommandButton Command1{"Command1", "Cancel"};

    // The figures of a generation that has begun; `seconds` since the start of the run.
    void ShowProgress(const GeneticProgress& progress, float seconds);
    void ShowEnd();

    std::string onOneLine() const override;
    std::optional<double> shareDone() const override { return Procent1.Width / Procent.Width; }

    // Asks the run to end with the best order so far, and closes the window.
    void Command1_Click();
    void CancelCommand() override { Command1_Click(); }

private:
    static constexpr int TrackWidth = 4500; // twips

    Session& session_;
};

} // namespace dorvan
