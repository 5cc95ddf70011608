#include "making/frmGenetic.h"

#include "numbers/number_text.h"

namespace dorvan {

namespace {

std::int16_t Selected(const ComboBox& list) { return StrictInt16(list.Text(), '.'); }

} // namespace

frmGenetic::frmGenetic(Session& session) : Dialog("frmGenetic", "Simple genetic algorithm", session) {}

void frmGenetic::Form_Load() {
    cboGen.List = {"2000", "1500", "1000", "750", "500", "250", "100"};
    cboGen.ListIndex = 5;
    cboVar.List = {"10", "20", "30", "40", "50"};
    cboVar.ListIndex = 2;
}

void frmGenetic::Command1_Click() {
    session_.ordering.GeneticGenerations = Selected(cboGen);
    session_.ordering.GeneticVariants = Selected(cboVar);
    Close(DialogResult::Accepted);
}

} // namespace dorvan
