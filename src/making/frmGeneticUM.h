#pragma once

#include "making/diagram_choices.h"
#include "making/ordering_options.h"
#include "session/dialog.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <map>
#include <string>

namespace dorvan {

// The dialog of the Ravelin ordering: the weights of its eight operators, its two critical numbers and the
// coefficient by which distances become bytes.
class frmGeneticUM : public Dialog {
public:
    explicit frmGeneticUM(Session& session);

    Frame Frame1{"Frame1", "Ravelin algorithm options:"};
    Label Label1{"Label1", "Sequence change:"};
    Label Label2{"Label2", "Fragment transfer:"};
    Label Label3{"Label3", "Some single transfers:"};
    Label Label4{"Label4", "Single transfer:"};
    Label Label5{"Label5", "Some remote conversions:"};
    Label Label6{"Label6", "Remote conversion:"};
    Label Label7{"Label7", "Some neighbour conversions:"};
    Label Label8{"Label8", "Neighbour conversion:"};
    Label Label9{"Label9", "Critical mutation number:"};
    Label Label10{"Label10", "Critical generation number:"};
    Label Label11{"Label11", "Matrix conversion coefficient:"};
    TextBox Text1{"Text1", "1"};
    TextBox Text2{"Text2", "5"};
    TextBox Text3{"Text3", "20"};
    TextBox Text4{"Text4", "50"};
    TextBox Text5{"Text5", "15"};
    TextBox Text6{"Text6", "30"};
    TextBox Text7{"Text7", "50"};
    TextBox Text8{"Text8", "200"};
    TextBox Text9{"Text9", "100"};
    TextBox Text10{"Text10", "10"};
    TextBox Text11{"Text11", "1.0"};
    Label Label12{"Label12", "Changes in these options should be performed only by advanced users!"};
    CommandButton Command1{"Command1", "O&K"};
    CommandButton Command2{"Command2", "Cancel"};

    // A line of the dialog, and the whole number that its field is stored in; null for the coefficient.
    struct Row {
        Label* Caption;
        TextBox* Field;
        std::int16_t OrderingOptions::*Value;
    };
    static constexpr std::size_t RowCount = 11;
    std::array<Row, RowCount> Rows(); // in the order of RavelinParameter

    void Enter(const std::map<RavelinParameter, std::string>& texts);

    // Digits and backspace; the field of the coefficient also takes the point. Enter goes to the next field.
    void Text_KeyPress(const TextBox& field, int& keyAscii);

    void Command1_Click();
    void Command2_Click() { Close(DialogResult::Cancelled); }
    void CancelCommand() override { Command2_Click(); }

private:
    bool Store(const Row& row);
};

} // namespace dorvan
