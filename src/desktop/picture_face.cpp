#include "desktop/form_faces.h"
#include "export/frmPicture.h"

#include <QGroupBox>
#include <QRadioButton>
#include <QVBoxLayout>

namespace dorvan {

namespace {

void LayOut(FormFace& face, frmPicture& form) {
    auto& binder = face.Binder();
    auto* frame = face.AddFrame(form.Frame1);
    auto* column = new QVBoxLayout(frame);
    for (OptionButton* option : {&form.Option1, &form.Option2, &form.Option3, &form.Option4}) {
        auto* button = new QRadioButton(frame);
        binder.Option(button, *option);
        column->addWidget(button);
    }
    face.AddField(face.AddRows(), form.Label1, form.Text1,
                  {.change = {},
                   .keyPress = [&form](int& keyAscii) { form.Text1_KeyPress(keyAscii); },
                   .keyDown = {},
                   .lostFocus = {}});
    face.AddButtons({{&form.Command1, [&form] { form.Command1_Click(); }},
                     {&form.Command2, [&form] { form.Command2_Click(); }}});
}

const FaceOfForm<frmPicture> registered(LayOut);

} // namespace

} // namespace dorvan
