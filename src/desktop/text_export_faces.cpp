#include "desktop/form_faces.h"
#include "desktop/qt_text.h"
#include "export/frmExportOptions.h"
#include "export/frmTextOptions.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QRadioButton>
#include <QVBoxLayout>

namespace dorvan {

namespace {

template <class Options> void LayOutSeparators(FormFace& face, Options& form) {
    auto* frame = new QGroupBox(ToQt(form.Frame1.Caption), &face);
    face.Binder().Plain(frame, form.Frame1, frame->title());
    auto* column = new QVBoxLayout(frame);
    for (OptionButton* option : {&form.Option1, &form.Option2, &form.Option3}) {
        auto* button = new QRadioButton(frame);
        face.Binder().Option(button, *option);
        column->addWidget(button);
    }
    face.Column().addWidget(frame);
}

template <class Options> void LayOutButtons(FormFace& face, Options& form) {
    face.AddButtons({{&form.Command2, [&form] { form.Command2_Click(); }},
                     {&form.Command1, [&form] { form.Command1_Click(); }}});
}

void LayOutSheet(FormFace& face, frmExportOptions& form) {
    LayOutSeparators(face, form);
    auto* names = new QCheckBox(&face);
    face.Binder().Check(names, form.Check1);
    face.Column().addWidget(names);
    LayOutButtons(face, form);
}

void LayOutMatrix(FormFace& face, frmTextOptions& form) {
    LayOutSeparators(face, form);
    LayOutButtons(face, form);
}

const FaceOfForm<frmExportOptions> ofSheet(LayOutSheet);
const FaceOfForm<frmTextOptions> ofMatrix(LayOutMatrix);

} // namespace

} // namespace dorvan
