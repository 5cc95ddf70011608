#include "desktop/form_faces.h"
#include "desktop/qt_text.h"
#include "distance/frmOpcjeMacierzy.h"

#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QVBoxLayout>

namespace dorvan {

namespace {

void LayOut(FormFace& face, frmOpcjeMacierzy& form) {
    auto& binder = face.Binder();
    auto* frame = new QGroupBox(ToQt(form.Frame1.Caption), &face);
    binder.Plain(frame, form.Frame1, frame->title());
    auto* rows = new QFormLayout(frame);
    auto* kinds = new QComboBox(frame);
    kinds->setMinimumContentsLength(28);
    face.AddRow(rows, form.lblData, kinds);
    binder.Combo(kinds, form.cboData, "Data", [&form] { form.cboData_Click(); });
    auto* measures = new QComboBox(frame);
    measures->setMinimumContentsLength(28);
    face.AddRow(rows, form.lblDistance, measures);
    binder.Combo(measures, form.Combo1, "Distance");
    face.Column().addWidget(frame);
    face.AddButtons({{&form.Command2, [&form] { form.Command2_Click(); }},
                     {&form.Command1, [&form] { form.Command1_Click(); }}});
}

const FaceOfForm<frmOpcjeMacierzy> registered(LayOut);

} // namespace

} // namespace dorvan
