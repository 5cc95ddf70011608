#include "making/frmGenetic.h"

#include "making/ordering_options.h"
#include "numbers/number_text.h"

#include <algorithm>

namespace dorvan {

namespace {

std::int16_t Selected(const ComboBox& list) { return StrictInt16(list.Text(), '.'); }

// An item that is not in the list leaves the selection as it is.
void Select(ComboBox& list, const std::string& item) {
    const auto found = std::find(list.List.begin(), list.List.end(), item);
    if (found != list.List.end()) list.ListIndex = static_cast<int>(found - list.List.begin());
}

} // namespace

frmGenetic::frmGenetic(Session& session) : Dialog("frmGenetic", "Simple genetic algorithm", session) {}

const std::vector<std::string>& frmGenetic::Generations() {
    static const std::vector<std::string> items{"2000", "1500", "1000", "750", "500", "250", "100"};
    return items;
}

const std::vector<std::string>& frmGenetic::Variants() {
    static const std::vector<std::string> items{"10", "20", "30", "40", "50"};
    return items;
}

void frmGenetic::Form_Load() {
    cboGen.List = Generations();
    cboGen.ListIndex = 5;
    cboVar.List = Variants();
    cboVar.ListIndex = 2;
}

void frmGenetic::Enter(const GeneticChoices& options) {
    Select(cboGen, options.Generations);
    Select(cboVar, options.Variants);
}

void frmGenetic::Command1_Click() {
    auto& options = session_.Of<OrderingOptions>();
    options.GeneticGenerations = Selected(cboGen);
    options.GeneticVariants = Selected(cboVar);
    Close(DialogResult::Accepted);
}

} // namespace dorvan
