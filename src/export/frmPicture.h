#pragma once

#include "export/diagram_pictures.h"
#include "platform/controls.h"
#include "session/dialog.h"

namespace dorvan {

// Chooses what of a diagram becomes a picture, and how large.
class frmPicture : public Dialog {
public:
    explicit frmPicture(Session& session) : Dialog("frmPicture", "Picture", session) {
        Option1.Value = true;
        Text1.MaxLength = 4;
    }

    Frame Frame1{"Frame1", "Picture of:"};
    OptionButton Option1{"Option1", "&Diagram"};
    OptionButton Option2{"Option2", "&Histogram"};
    OptionButton Option3{"Option3", "&Cumulative histogram"};
    OptionButton Option4{"Option4", "&Linear graph"};
    Label Label1{"Label1", "&Size in percent:"};
    TextBox Text1{"Text1", "100"};
    CommandButton Command1{"Command1", "OK"};
    CommandButton Command2{"Command2", "Cancel"};

    static constexpr int LeastPercent = 10;
    static constexpr int MostPercent = 1600;

    DiagramPicture What() const;
    double Scale = 1; // as accepted

    void Text1_KeyPress(int& keyAscii);
    void Command1_Click(); // refuses a size outside the limits
    void Command2_Click() { Close(DialogResult::Cancelled); }
    void CancelCommand() override { Command2_Click(); }
};

} // namespace dorvan
