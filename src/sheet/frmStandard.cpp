#include "sheet/frmStandard.h"

namespace dorvan {

void frmStandard::Form_Show() {
    Option1.Value = false;
    Option2.Value = true;
}

void frmStandard::Command2_Click() {
    StandardMethod = Option1.Value ? ByDeviation : ToRange;
    Close(DialogResult::Accepted);
}

} // namespace dorvan
