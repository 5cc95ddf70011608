#include "desktop/described_grid.h"
#include "desktop/tile_pictures.h"
#include "view/frmDiagram.h"

namespace dorvan {

namespace {

void LayOut(ChildFace& face, frmDiagram& window, const ChildContext&) {
    auto& grid =
        LayOutDescribedGrid(face, window, "Diagram",
                            {.change = [&window] { window.BottomText_Change(); },
                             .keyPress = [&window](int& keyAscii) { window.BottomText_KeyPress(keyAscii); },
                             .keyDown = {},
                             .lostFocus = {}});
    grid.SetPictures(TilePictures());
    grid.followsRulesSideways = false; // the names stay in sight while rows are moved
    grid.events.doubleClick = [&window] { window.Siatka_DblClick(); };
}

const FaceOfChild<frmDiagram> registered(LayOut);

} // namespace

} // namespace dorvan
