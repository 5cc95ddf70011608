#pragma once

#include "desktop/faces.h"
#include "desktop/form_face.h"
#include "desktop/qt_text.h"

#include <memory>

namespace dorvan {

using FormLayouts = Layouts<FormFace, Form>;

// Ties a class of dialog to the function that lays it out, in the file of that function:
//
//     void LayOut(FormFace& face, frmNowy& form) { ... }
//     const FaceOfForm<frmNowy> registered(LayOut);
template <class F> struct FaceOfForm {
    explicit FaceOfForm(void (*layOut)(FormFace&, F&)) {
        FormLayouts::Add(typeid(F),
                         [layOut](FormFace& face, Form& form) { layOut(face, dynamic_cast<F&>(form)); });
    }
};

// The face of a form, laid out by its class. Fails with InvalidProcedureCall for one without a face.
std::unique_ptr<FormFace> MakeFormFace(Form& form, EventDispatch& dispatch, QWidget* parent);

} // namespace dorvan
