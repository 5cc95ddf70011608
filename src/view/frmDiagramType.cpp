#include "view/frmDiagramType.h"

namespace dorvan {

void frmDiagramType::Form_Load() {
    Index = session_.NewWindowIndex;
    Enter(Type());
}

void frmDiagramType::Enter(std::int16_t type) {
    Option1.Value = type == 1;
    Option2.Value = type == 2;
    Option3.Value = type == 3;
}

void frmDiagramType::OKButton_Click() {
    if (Option1.Value) Type() = 1;
    if (Option2.Value) Type() = 2;
    if (Option3.Value) Type() = 3;
    Hide();
}

} // namespace dorvan
