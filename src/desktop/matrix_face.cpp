#include "desktop/described_grid.h"
#include "distance/frmMacierz.h"

namespace dorvan {

void LayOutMatrix(ChildFace& face, const ChildContext&) {
    auto& window = dynamic_cast<frmMacierz&>(*face.Window());
    LayOutDescribedGrid(face, window.Siatka, "Matrix", window.BottomText,
                        {.change = [&window] { window.BottomText_Change(); },
                         .keyPress = [&window](int& keyAscii) { window.BottomText_KeyPress(keyAscii); },
                         .keyDown = {},
                         .lostFocus = {}});
}

} // namespace dorvan
