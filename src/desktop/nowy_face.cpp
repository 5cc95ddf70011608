#include "desktop/form_faces.h"
#include "sheet/frmNowy.h"

namespace dorvan {

void LayOutNowy(FormFace& face) {
    auto& form = dynamic_cast<frmNowy&>(face.Shown());
    auto* rows = face.AddRows();
    face.AddField(rows, "Number of records:", form.txtRecords,
                  {.change = {},
                   .keyPress = [&form](int& keyAscii) { form.txtRecords_KeyPress(keyAscii); },
                   .keyDown = {},
                   .lostFocus = {}});
    face.AddField(rows, "Number of variables:", form.txtLiczba,
                  {.change = {},
                   .keyPress = [&form](int& keyAscii) { form.txtLiczba_KeyPress(keyAscii); },
                   .keyDown = {},
                   .lostFocus = {}});
    face.AddButtons({{&form.Command1, [&form] { form.Command1_Click(); }},
                     {&form.Command2, [&form] { form.Command2_Click(); }}});
}

} // namespace dorvan
