#include "desktop/form_faces.h"
#include "desktop/qt_text.h"
#include "print/frmOpisDiagramu.h"
#include "print/frmPrintMatrix.h"

#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QRadioButton>

namespace dorvan {

namespace {

template <class Print> void LayOutButtons(FormFace& face, Print& form) {
    face.AddButtons({{&form.Command1, [&form] { form.Command1_Click(); }},
                     {&form.Command2, [&form] { form.Command2_Click(); }},
                     {&form.Command3, [&form] { form.Command3_Click(); }}});
}

void LayOutMatrix(FormFace& face, frmPrintMatrix& form) { LayOutButtons(face, form); }

void LayOutDiagram(FormFace& face, frmOpisDiagramu& form) {
    auto& binder = face.Binder();
    auto* fonts = new QComboBox(&face);
    fonts->setMinimumContentsLength(28);
    fonts->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    face.AddRow(face.AddRows(), form.Label1, fonts);
    binder.Combo(fonts, form.Combo1, "Select font");
    auto* frame = new QGroupBox(ToQt(form.Frame1.Caption), &face);
    binder.Plain(frame, form.Frame1, frame->title());
    auto* row = new QHBoxLayout(frame);
    for (OptionButton* option : {&form.Option1, &form.Option2, &form.Option3}) {
        auto* button = new QRadioButton(frame);
        binder.Option(button, *option);
        row->addWidget(button);
    }
    face.Column().addWidget(frame);
    LayOutButtons(face, form);
}

const FaceOfForm<frmPrintMatrix> ofMatrix(LayOutMatrix);
const FaceOfForm<frmOpisDiagramu> ofDiagram(LayOutDiagram);

} // namespace

} // namespace dorvan
