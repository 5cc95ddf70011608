#pragma once

#include "making/diagram_choices.h"
#include "session/dialog.h"

#include <vector>

namespace dorvan {

// The dialog of a diagram's options: data kind and measure (not for a matrix), diagram type, order and
// section limits. Leaves its choices in the session.
class frmPrzedzal : public Dialog {
public:
    explicit frmPrzedzal(Session& session);

    Frame Frame1{"Frame1", "Data and distance type:"};
    Label lblData{"lblData", "&Data:"};
    ComboBox cboData{"cboData"};
    Label lblDistance{"lblDistance", "D&istance:"};
    ComboBox Combo1{"Combo1"};

    Frame Frame2{"Frame2", "Diagram type:"};
    OptionButton Option1{"Option1", "greyscale"};
    OptionButton Option2{"Option2", "dots"};
    OptionButton Option3{"Option3", "classic"};

    Frame Frame3{"Frame3", "Order:"};
    OptionButton Option6{"Option6", "no well-ordered"};
    OptionButton Option7{"Option7", "simple auto algorithm"};
    OptionButton Option8{"Option8", "simple genetic algorithm"};
    OptionButton Option9{"Option9", "Ravelin genetic algorithm"};

    Frame Frame4{"Frame4", "Set section limits:"};
    CheckBox chkAuto{"chkAuto", "Automatic"};
    TextBox Text1{"Text1"}; // SecLimit_1 to SecLimit_4
    TextBox Text2{"Text2"};
    TextBox Text3{"Text3"};
    TextBox Text4{"Text4"};
    Label Label1{"Label1", "0"};
    Label Label2{"Label2", "and more"};
    Label Label3{"Label3", "I"};
    Label Label4{"Label4", "II"};
    Label Label5{"Label5", "III"};
    Label Label6{"Label6", "IV"};
    Label Label7{"Label7", "V"};

    CommandButton Command3{"Command3", "O&K"};
    CommandButton Command2{"Command2", "Cancel"};

    void Form_Load() override;
    // Without Frame1 (when it is not Visible) all that stands below it moves up by its room.
    void Form_Show() override;

    void Enter(const DiagramChoices& options);

    void cboData_Click(); // after a change of its selection
    void chkAuto_Click(); // after a change of its tick

    // An option goes on and the others of its frame off.
    void Option1_Click() { Choose(TypeOptions(), Option1); }
    void Option2_Click() { Choose(TypeOptions(), Option2); }
    void Option3_Click() { Choose(TypeOptions(), Option3); }
    void Option6_Click() { Choose(OrderOptions(), Option6); }
    void Option7_Click() { Choose(OrderOptions(), Option7); }
    void Option8_Click() { Choose(OrderOptions(), Option8); }
    void Option9_Click() { Choose(OrderOptions(), Option9); }

    void Text1_KeyPress(int& keyAscii) { FilterKey(keyAscii); }
    void Text2_KeyPress(int& keyAscii) { FilterKey(keyAscii); }
    void Text3_KeyPress(int& keyAscii) { FilterKey(keyAscii); }
    void Text4_KeyPress(int& keyAscii) { FilterKey(keyAscii); }

    void Command3_Click();
    void Command2_Click() { Close(DialogResult::Cancelled); }
    void CancelCommand() override { Command2_Click(); }

private:
    using Options = std::vector<OptionButton*>; // the place of an option + 1 is its session value

    Options TypeOptions() { return {&Option1, &Option2, &Option3}; }
    Options OrderOptions() { return {&Option6, &Option7, &Option8, &Option9}; }
    std::vector<TextBox*> LimitFields() { return {&Text1, &Text2, &Text3, &Text4}; }

    static void Choose(const Options& options, OptionButton& chosen);
    static void Store(const Options& options, std::int16_t& value);
    void FilterKey(int& keyAscii);

    void LoadLimits();
    void EnableLimits(bool enabled);
    void StoreChoices();
    bool TypedLimitsAccepted();
    bool ParseLimits();
    bool FurtherDialogsAccepted();
    bool Refuse(const std::string& text, MessageIcon icon);
};

// Shows the dialog modally; false when it was cancelled.
bool ShowDiagramOptions(Session& session);

} // namespace dorvan
