#include "desktop/form_faces.h"
#include "view/frmDiagramType.h"

#include <QGroupBox>
#include <QRadioButton>
#include <QVBoxLayout>

namespace dorvan {

namespace {

void LayOut(FormFace& face, frmDiagramType& form) {
    auto* frame = new QGroupBox(ToQt(form.Frame2.Caption), &face);
    face.Binder().Plain(frame, form.Frame2, frame->title());
    auto* column = new QVBoxLayout(frame);
    for (OptionButton* option : {&form.Option1, &form.Option2, &form.Option3}) {
        auto* button = new QRadioButton(frame);
        face.Binder().Option(button, *option);
        column->addWidget(button);
    }
    face.Column().addWidget(frame);
    face.AddButtons({{&form.OKButton, [&form] { form.OKButton_Click(); }},
                     {&form.CancelButton, [&form] { form.CancelButton_Click(); }}});
}

const FaceOfForm<frmDiagramType> registered(LayOut);

} // namespace

} // namespace dorvan
