#include "desktop/form_faces.h"
#include "distance/frmCustomized.h"

namespace dorvan {

void LayOutCustomized(FormFace& face) {
    auto& form = dynamic_cast<frmCustomized&>(face.Shown());
    face.AddNote("d (x,y) = ( Σ | x - y |<sup>p</sup> )<sup>1/r</sup>");
    auto* rows = face.AddRows();
    face.AddField(rows, "p = ", form.Text1,
                  {.change = {},
                   .keyPress = [&form](int& keyAscii) { form.Text1_KeyPress(keyAscii); },
                   .keyDown = {},
                   .lostFocus = {}});
    face.AddField(rows, "r = ", form.Text2,
                  {.change = {},
                   .keyPress = [&form](int& keyAscii) { form.Text2_KeyPress(keyAscii); },
                   .keyDown = {},
                   .lostFocus = {}});
    face.AddButtons({{&form.Command1, [&form] { form.Command1_Click(); }},
                     {&form.Command2, [&form] { form.Command2_Click(); }}});
}

} // namespace dorvan
