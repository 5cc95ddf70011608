#include "desktop/form_faces.h"
#include "sheet/frmNowy.h"

namespace dorvan {

namespace {

void LayOut(FormFace& face, frmNowy& form) {
    auto* rows = face.AddRows();
    face.AddField(rows, form.Label1, form.txtRecords,
                  {.change = {},
                   .keyPress = [&form](int& keyAscii) { form.txtRecords_KeyPress(keyAscii); },
                   .keyDown = {},
                   .lostFocus = {}});
    face.AddField(rows, form.Label2, form.txtLiczba,
                  {.change = {},
                   .keyPress = [&form](int& keyAscii) { form.txtLiczba_KeyPress(keyAscii); },
                   .keyDown = {},
                   .lostFocus = {}});
    face.AddButtons({{&form.Command1, [&form] { form.Command1_Click(); }},
                     {&form.Command2, [&form] { form.Command2_Click(); }}});
}

const FaceOfForm<frmNowy> registered(LayOut);

} // namespace

} // namespace dorvan
