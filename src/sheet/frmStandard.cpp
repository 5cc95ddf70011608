#include "sheet/frmStandard.h"

namespace dorvan {

void frmStandard::Form_Show() { Enter(ToRange); }

void frmStandard::Enter(std::int16_t method) {
    Option1.Value = method == ByDeviation;
    Option2.Value = method == ToRange;
}

void frmStandard::Command2_Click() {
    StandardMethod = Option1.Value ? ByDeviation : ToRange;
    Close(DialogResult::Accepted);
}

} // namespace dorvan
