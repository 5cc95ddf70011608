#pragma once

#include "making/diagram_choices.h"
#include "session/dialog.h"

#include <string>
#include <vector>

namespace dorvan {

// The dialog of the simple genetic ordering: the size of the run.
class frmGenetic : public Dialog {
public:
    explicit frmGenetic(Session& session);

    Label Label1{"Label1", "Number of generations:"};
    ComboBox cboGen{"cboGen"};
    Label Label2{"Label2", "Number of variants:"};
    ComboBox cboVar{"cboVar"};
    Label Label3{"Label3",
                 "Choosing 10 variants and 100 generations assures quick but not very precise results. 50 "
                 "variants and 2000 generations is brutal method which assures better results, but it "
                 "demands a lot of patience."};
    CommandButton Command1{"Command1", "O&K"};
    CommandButton Command2{"Command2", "Cancel"};

    // The items of the two lists.
    static const std::vector<std::string>& Generations();
    static const std::vector<std::string>& Variants();

    void Form_Load() override;
    void Enter(const GeneticChoices& options);
    void Command1_Click();
    void Command2_Click() { Close(DialogResult::Cancelled); }
    void CancelCommand() override { Command2_Click(); }
};

} // namespace dorvan
