#include "desktop/described_grid.h"
#include "desktop/tile_pictures.h"
#include "view/frmDiagram.h"

namespace dorvan {

void LayOutDiagram(ChildFace& face, const ChildContext&) {
    auto& window = dynamic_cast<frmDiagram&>(*face.Window());
    auto& grid =
        LayOutDescribedGrid(face, window.Siatka, "Diagram", window.BottomText,
                            {.change = [&window] { window.BottomText_Change(); },
                             .keyPress = [&window](int& keyAscii) { window.BottomText_KeyPress(keyAscii); },
                             .keyDown = {},
                             .lostFocus = {}});
    grid.SetPictures(TilePictures());
    grid.events.doubleClick = [&window] { window.Siatka_DblClick(); };
}

} // namespace dorvan
