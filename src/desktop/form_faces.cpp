#include "desktop/form_faces.h"

#include "numbers/runtime_failure.h"

#include <map>
#include <string>

namespace dorvan {

std::unique_ptr<FormFace> MakeFormFace(Form& form, EventDispatch& dispatch, QWidget* parent) {
    static const std::map<std::string, void (*)(FormFace&)> faces = {
        {"frmAbout", LayOutAbout},           {"frmNowy", LayOutNowy},
        {"frmCustomized", LayOutCustomized}, {"frmOpcjeMacierzy", LayOutOptionsOfMatrix},
        {"frmPrzedzal", LayOutPrzedzal},     {"frmGenetic", LayOutGenetic},
        {"frmGeneticUM", LayOutGeneticUM},   {"frmWork", LayOutWork},
        {"frmWorkUM", LayOutWorkUM},
    };
    const auto found = faces.find(form.Name);
    if (found == faces.end()) throw RuntimeFailure(Failure::InvalidProcedureCall, form.Name);
    auto face = std::make_unique<FormFace>(form, dispatch, parent);
    found->second(*face);
    face->Binder().Mirror();
    return face;
}

} // namespace dorvan
