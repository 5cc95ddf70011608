#include "desktop/form_faces.h"
#include "distance/frmCustomized.h"

namespace dorvan {

namespace {

void LayOut(FormFace& face, frmCustomized& form) {
    face.AddNote("d (x,y) = ( Σ | x - y |<sup>p</sup> )<sup>1/r</sup>");
    auto* rows = face.AddRows();
    face.AddField(rows, form.Label1, form.Text1,
                  {.change = {},
                   .keyPress = [&form](int& keyAscii) { form.Text1_KeyPress(keyAscii); },
                   .keyDown = {},
                   .lostFocus = {}});
    face.AddField(rows, form.Label2, form.Text2,
                  {.change = {},
                   .keyPress = [&form](int& keyAscii) { form.Text2_KeyPress(keyAscii); },
                   .keyDown = {},
                   .lostFocus = {}});
    face.AddButtons({{&form.Command1, [&form] { form.Command1_Click(); }},
                     {&form.Command2, [&form] { form.Command2_Click(); }}});
}

const FaceOfForm<frmCustomized> registered(LayOut);

} // namespace

} // namespace dorvan
