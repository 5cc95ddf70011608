#include "desktop/form_faces.h"
#include "making/frmGenetic.h"

#include <QComboBox>
#include <QFormLayout>

namespace dorvan {

namespace {

void LayOut(FormFace& face, frmGenetic& form) {
    auto* rows = face.AddRows();
    for (auto [label, list] :
         {std::pair{&form.Label1, &form.cboGen}, std::pair{&form.Label2, &form.cboVar}}) {
        auto* box = new QComboBox(&face);
        face.AddRow(rows, *label, box);
        face.Binder().Combo(box, *list, ToQt(label->Caption));
    }
    face.AddLabel(form.Label3);
    face.AddButtons({{&form.Command1, [&form] { form.Command1_Click(); }},
                     {&form.Command2, [&form] { form.Command2_Click(); }}});
}

const FaceOfForm<frmGenetic> registered(LayOut);

} // namespace

} // namespace dorvan
