#include "desktop/described_grid.h"
#include "distance/frmMacierz.h"

namespace dorvan {

namespace {

void LayOut(ChildFace& face, frmMacierz& window, const ChildContext&) {
    LayOutDescribedGrid(face, window, "Matrix",
                        {.change = [&window] { window.BottomText_Change(); },
                         .keyPress = [&window](int& keyAscii) { window.BottomText_KeyPress(keyAscii); },
                         .keyDown = {},
                         .lostFocus = {}});
}

const FaceOfChild<frmMacierz> registered(LayOut);

} // namespace

} // namespace dorvan
