#include "desktop/form_faces.h"
#include "desktop/qt_text.h"
#include "distance/frmOpcjeMacierzy.h"

#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QVBoxLayout>

namespace dorvan {

void LayOutOptionsOfMatrix(FormFace& face) {
    auto& form = dynamic_cast<frmOpcjeMacierzy&>(face.Shown());
    auto& binder = face.Binder();
    auto* frame = new QGroupBox(ToQt(form.Frame1.Caption), &face);
    binder.Plain(frame, form.Frame1, frame->title());
    auto* rows = new QFormLayout(frame);
    auto* kinds = new QComboBox(frame);
    kinds->setMinimumContentsLength(28);
    rows->addRow("&Data:", kinds);
    binder.Combo(kinds, form.cboData, "Data", [&form] { form.cboData_Click(); });
    auto* measures = new QComboBox(frame);
    measures->setMinimumContentsLength(28);
    rows->addRow("D&istance:", measures);
    binder.Combo(measures, form.Combo1, "Distance");
    face.Column().addWidget(frame);
    face.AddButtons({{&form.Command2, [&form] { form.Command2_Click(); }},
                     {&form.Command1, [&form] { form.Command1_Click(); }}});
}

} // namespace dorvan
