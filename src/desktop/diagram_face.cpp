#include "desktop/described_grid.h"
#include "desktop/grid_zoom.h"
#include "desktop/row_dragging.h"
#include "desktop/tile_pictures.h"
#include "platform/twips.h"
#include "view/frmDiagram.h"
#include "view/row_drag.h"

namespace dorvan {

namespace {

void BindZoom(GridWidget& grid, frmDiagram& window, EventDispatch& dispatch) {
    grid.zoom = [&window] { return window.Zoom.Percent(); };
    new GridZoom(grid, dispatch,
                 {.in = [&window] { window.ZoomIn(); },
                  .out = [&window] { window.ZoomOut(); },
                  .room =
                      [&window](QSize room, double ratio) {
                          const double pixel = TwipsPerPixel / ratio;
                          window.TakeRoom({room.width() * pixel, room.height() * pixel, pixel});
                      }});
}

void LayOut(ChildFace& face, frmDiagram& window, const ChildContext& context) {
    auto& grid =
        LayOutDescribedGrid(face, window, "Diagram",
                            {.change = [&window] { window.BottomText_Change(); },
                             .keyPress = [&window](int& keyAscii) { window.BottomText_KeyPress(keyAscii); },
                             .keyDown = {},
                             .lostFocus = {}});
    grid.SetPictures(TilePictures());
    grid.followsRulesSideways = false; // the names stay in sight while rows are moved
    BindZoom(grid, window, context.dispatch);
    new RowDragging(grid, context.dispatch, [&session = context.session, &window](int from, int to) {
        DragRow(session, window, from, to);
    });
    grid.events.rightButton = [popUp = context.popUp](QPoint global) {
        popUp(std::string(DocumentKind::Diagram), global);
    };
    grid.events.doubleClick = [&window] { window.Siatka_DblClick(); };
}

const FaceOfChild<frmDiagram> registered(LayOut);

} // namespace

} // namespace dorvan
