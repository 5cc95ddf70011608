#pragma once

#include "platform/controls.h"
#include "session/dialog.h"
#include "view/section_counts.h"

#include <array>
#include <cstdint>
#include <string>

namespace dorvan {

// Shows how the pairs of records of a diagram fall into the five sections, and lets the user try other
// limits. OK stores them in the document and leaves reclassifying and repainting to the caller; it demands
// limits that rise, where Check also draws equal neighbours. Loading fails with Overflow for diagrams of 1
// record, and of more than 181.
class frmHistogram : public Dialog {
public:
    explicit frmHistogram(Session& session);

    Frame Frame1{"Frame1", "Histogram"};
    OptionButton Option1{"Option1", "Normal"}; // takes effect at the next Check
    OptionButton Option2{"Option2", "Cumulative"};
    Picture Picture1{"Picture1"}; // the chart
    Frame Frame3{"Frame3", "Set section limits:"};
    Label Label1{"Label1", "0"};
    Label Label2{"Label2", "I"};
    TextBox Text1{"Text1"};
    Label Label3{"Label3", "II"};
    TextBox Text2{"Text2"};
    Label Label4{"Label4", "III"};
    TextBox Text3{"Text3"};
    Label Label5{"Label5", "IV"};
    TextBox Text4{"Text4"};
    Label Label6{"Label6", "V"};
    Label Label7{"Label7", "more..."};
    CommandButton Command1{"Command1", "O&K"};
    CommandButton Command2{"Command2", "Cancel"};
    CommandButton Command3{"Command3", "&Check"};

    std::int16_t Index = 0; // the diagram's slot
    SectionCounts Counts;   // running sums in a cumulative chart

    // The limits as a user types them.
    void Enter(const std::array<std::string, 4>& limits);

    void Command1_Click();
    void Command2_Click();
    void Command3_Click();
    void Text1_KeyPress(int& keyAscii) { FilterKey(keyAscii); }
    void Text2_KeyPress(int& keyAscii) { FilterKey(keyAscii); }
    void Text3_KeyPress(int& keyAscii) { FilterKey(keyAscii); }
    void Text4_KeyPress(int& keyAscii) { FilterKey(keyAscii); }

    void Form_Load() override;
    void CancelCommand() override { Command2_Click(); }

private:
    enum class Order { Strict, EqualNeighboursToo };

    static void FilterKey(int& keyAscii);
    std::array<TextBox*, 4> Boxes() { return {&Text1, &Text2, &Text3, &Text4}; }
    DiagramDocument& Document();
    bool ReadLimits(Order order, Array1<float>& limits);
    bool Refuse(const char* text, MessageIcon icon = MessageIcon::Critical);
    void Draw(const Array1<float>& limits);
};

} // namespace dorvan
