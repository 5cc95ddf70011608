#include "session/busy.h"
#include "session/opening.h"
#include "view/bitmap_drawing.h"
#include "view/frmBMP.h"
#include "view/frmDiagram.h"

namespace dorvan {

namespace {

constexpr int MostLegibleRecords = 150; // the message names another number

} // namespace

void frmDiagram::BITMAP() {
    if (RefusedWhileBusy(session_)) return;
    if (Document().RecCount > MostLegibleRecords)
        session_.platform.messages.show({.Text = "Diagram is too big for creating bitmap (bigger than 125). "
                                                 "It's going to be illegible!"});
    const WaitCursor waiting(session_.platform);
    OpenDocumentWindow<frmBMP>(session_, {}, [this](frmBMP& window) {
        window.ShowPicture(BitmapDrawing(Document(), session_.platform.fonts, session_.DecimalSeparator));
    });
}

} // namespace dorvan
