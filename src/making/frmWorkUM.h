#pragma once

#include "making/progress_window.h"
#include "making/ravelin_ordering.h"
#include "session/session.h"

namespace dorvan {

// The progress of the Ravelin ordering. Counters are decimal text, figures have five decimals.
class frmWorkUM : public ProgressWindow {
public:
    explicit frmWorkUM(Session& session);

    Label Label1{"Label1", "Generations number:"};
    Label Generacje{"Generacje"};
    Label lblChangesG{"lblChangesG"}; // generations in a row without gain
    Label Label2{"Label2", "Mutations number:"};
    Label Mutacje{"Mutacje"};
    Label lblChangeM{"lblChangeM"}; // mutations in a row without gain
    Label Label3{"Label3", "UM coefficient value:"};
    Label lblFunkcja{"lblFunkcja"};
    Label Label4{"Label4", "Actual UM value:"};
    Label lblActualUM{"lblActualUM"};
    Label Label5{"Label5", "Best UM coefficient:"};
    Label BestUm{"BestUm"};
    Label Label6{"Label6", "Analysis time:"};
    Label InfoTime{"InfoTime"};
    CommandButton Command1{"Command1", "Cancel"};

    // What the run shows at the moment. The time is shown anew where it is due; `seconds` since the start.
    void ShowProgress(const RavelinProgress& progress, float seconds);

    std::string onOneLine() const override;

    // Asks the run to end with the best order so far, and closes the window.
    void Command1_Click();
    void CancelCommand() override { Command1_Click(); }

private:
    Session& session_;
};

} // namespace dorvan
