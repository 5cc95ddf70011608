#include "desktop/form_faces.h"

namespace dorvan {

std::unique_ptr<FormFace> MakeFormFace(Form& form, EventDispatch& dispatch, QWidget* parent) {
    const auto& layOut = FormLayouts::For(form);
    auto face = std::make_unique<FormFace>(form, dispatch, parent);
    layOut(*face, form);
    face->Binder().Mirror();
    return face;
}

} // namespace dorvan
