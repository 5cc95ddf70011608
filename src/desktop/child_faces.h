#pragma once

#include "desktop/child_face.h"
#include "desktop/faces.h"

#include <functional>

namespace dorvan {

struct Session;

// What the faces of child windows need beside their window.
struct ChildContext {
    Session& session;
    EventDispatch& dispatch;
    std::function<void(const std::string& menu, QPoint global)> popUp;
};

using ChildLayouts = Layouts<ChildFace, ChildWindow, ChildContext>;

// Ties a class of child window to the function that lays it out, in the file of that function:
//
//     void LayOut(ChildFace& face, frmDiagram& window, const ChildContext& context) { ... }
//     const FaceOfChild<frmDiagram> registered(LayOut);
template <class W> struct FaceOfChild {
    explicit FaceOfChild(void (*layOut)(ChildFace&, W&, const ChildContext&)) {
        ChildLayouts::Add(typeid(W),
                          [layOut](ChildFace& face, ChildWindow& window, const ChildContext& context) {
                              layOut(face, dynamic_cast<W&>(window), context);
                          });
    }
};

// The face of a child window, laid out by its class. Fails with InvalidProcedureCall for one without a face.
ChildFace* MakeChildFace(ChildWindow& window, const ChildContext& context);

} // namespace dorvan
