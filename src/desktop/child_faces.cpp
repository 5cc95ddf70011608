#include "desktop/child_faces.h"

#include "numbers/runtime_failure.h"

namespace dorvan {

ChildFace* MakeChildFace(ChildWindow& window, const ChildContext& context) {
    using LayOut = void (*)(ChildFace&, const ChildContext&);
    const LayOut layOut = window.Name == "frmNotePad"   ? LayOutNotePad
                          : window.Name == "frmMacierz" ? LayOutMatrix
                          : window.Name == "frmDiagram" ? LayOutDiagram
                                                        : nullptr;
    if (!layOut) throw RuntimeFailure(Failure::InvalidProcedureCall, window.Name);
    auto face = std::make_unique<ChildFace>(context.session, window, context.dispatch);
    layOut(*face, context);
    face->Mirror();
    return face.release();
}

} // namespace dorvan
