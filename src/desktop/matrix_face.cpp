#include "desktop/described_grid.h"
#include "distance/frmMacierz.h"

namespace dorvan {

namespace {

void LayOut(ChildFace& face, frmMacierz& window, const ChildContext& context) {
    auto& grid =
        LayOutDescribedGrid(face, window, "Matrix",
                            {.change = [&window] { window.BottomText_Change(); },
                             .keyPress = [&window](int& keyAscii) { window.BottomText_KeyPress(keyAscii); },
                             .keyDown = {},
                             .lostFocus = {}});
    grid.events.rightButton = [popUp = context.popUp](QPoint global) {
        popUp(std::string(DocumentKind::Matrix), global);
    };
}

const FaceOfChild<frmMacierz> registered(LayOut);

} // namespace

} // namespace dorvan
