#pragma once

#include "platform/form.h"
#include "session/session.h"

namespace dorvan {

// The dialog "Print setup", before a diagram is printed: the printer's font and `DiagramPrintSize`.
class frmOpisDiagramu : public Form {
public:
    explicit frmOpisDiagramu(Session& session);

    Label Label1{"Label1", "Select font:"};
    ComboBox Combo1{"Combo1"}; // the printer's fonts
    Frame Frame1{"Frame1", "Diagram size:"};
    OptionButton Option1{"Option1", "Normal"};
    OptionButton Option2{"Option2", "Small"};
    OptionButton Option3{"Option3", "Large"};
    CommandButton Command1{"Command1", "OK"};
    CommandButton Command2{"Command2", "Cancel"};
    CommandButton Command3{"Command3", "&Printer options"};

    // A size, 1 to 3, and a font, which need not be one of the list.
    void Enter(std::int16_t size, const std::string& font);

    void Form_Load() override;
    void Command1_Click();
    void Command2_Click();
    void Command3_Click();
    void CancelCommand() override { Command2_Click(); }

private:
    Session& session_;
};

} // namespace dorvan
